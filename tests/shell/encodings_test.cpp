#include "views.h"

#include "platform/engine/memoryengine.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

} // namespace

// A page in Windows-1252 opened and saved from either view keeps every byte; what
// the user types that the code page cannot hold goes in as a character reference.
TEST(Encodings, AnOldPageKeepsItsBytesThroughOpenAndSaveInBothViews) {
    QByteArray high;
    for (int b = 0x80; b <= 0xFF; ++b)
        high += char(b);
    const QByteArray page = "<HTML><HEAD><META NAME=\"GENERATOR\" Content=\"Zelvo Tessara\">"
                            "</HEAD><BODY><P>" +
                            high + "</P></BODY></HTML>";
    for (const bool visual : {false, true}) {
        Views v;
        const QString path = v.program.scratch("old.html");
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(page);
        file.close();
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

        EXPECT_EQ(bytesOf(path), QByteArray(page).replace("<P>", "<P>&#10003;") + "\r\n")
            << (visual ? "visual" : "source");
        EXPECT_TRUE(v.program.failures.empty());
    }
}
