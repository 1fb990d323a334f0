#include "views.h"

#include "platform/engine/memoryengine.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

// A page in Windows-1252 opened and saved from either view keeps every byte; what
// the user types that the code page cannot hold goes in as a character reference.
TEST(Encodings, AnOldPageKeepsItsBytesThroughOpenAndSaveInBothViews) {
    QString high; // one character per byte, as the scratch files are written
    for (int b = 0x80; b <= 0xFF; ++b)
        high += QChar(b);
    const QString page = "<HTML><HEAD><META NAME=\"GENERATOR\" Content=\"Zelvo Tessara\">"
                         "</HEAD><BODY><P>" +
                         high + "</P></BODY></HTML>";
    for (const bool visual : {false, true}) {
        Views v;
        const QString path = v.file("old.html", page);
        v.program.pickers.files = {path};
        v.run([&] { visual ? v.tessara.mnuOpen() : v.zelvo.mnuOpen(); });
        if (visual) {
            auto& engine = static_cast<MemoryEngine&>(v.txtComp());
            engine.setSelection(3, 0);
            engine.typeKey(QChar(0x2713));
        } else {
            v.area().setSelStart(v.area().text().indexOf("<P>") + 3);
            v.area().setSelText(QString(QChar(0x2713)));
        }
        v.run([&] { visual ? v.tessara.mnuSave() : v.zelvo.mnuSave(); });
        EXPECT_EQ(readFile(path), QString(page).replace("<P>", "<P>&#10003;") + "\r\n")
            << (visual ? "visual" : "source");
        EXPECT_TRUE(v.program.failures.empty());
    }
}
