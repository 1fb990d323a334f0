#include "platform/richtext.h"
#include "support/failureof.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

using namespace zt;

// Texts made of the pieces that RTF treats specially, shuffled: every one must come
// back exactly, and the file itself stays 7-bit.
TEST(RichText, AnyTextReadsBackExactly) {
    const QStringList pieces = {"\r\n",   "\r",     "\n",     "\t",          "\\",   "{",
                                "}",      "\\par",  " ",      "<p class=x>", "?",    "\u00e9",
                                "\u20ac", "\u0100", "\u4e2d", "\U0001F600",  "\x01", "\\'e9",
                                "a1",     "\u0081", "\u00a0"};
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        QString text;
        for (int n = int(random() % 12); n > 0; --n)
            text += pieces[int(random() % pieces.size())];
        const QByteArray file = richtext::write(text);
        ASSERT_EQ(richtext::read(file), text) << file.toStdString();
        for (const char byte : file)
            ASSERT_LT(uchar(byte), 0x80);
    }
}

// What the Windows rich text control writes: tables to skip, an ignorable group,
// formatting words, escapes in the declared code page, a \u with its stand-in, and
// the paragraph mark that ends every document.
TEST(RichText, ReadsTheWindowsControlsDialect) {
    const char text[] =
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033{\\fonttbl{\\f0\\fswiss\\fcharset0 "
        "Arial;}}\r\n{\\colortbl ;\\red255\\green0\\blue0;}\r\n{\\*\\generator Writer 1.0;}"
        "\\viewkind4\\uc1\\pard\\cf1\\b\\f0\\fs20 <p class=\"x\">caf\\'e9 \\{a\\}\\b0\\par\r\n"
        "\\tab C:\\\\dir\\line \\u8364\\'80 \\ldblquote ok\\rdblquote\\par\r\n}\r\n";
    const QByteArray file(text, sizeof text); // with the NUL the control ends on
    EXPECT_EQ(richtext::read(file),
              "<p class=\"x\">caf\u00e9 {a}\r\n\tC:\\dir\r\n\u20ac \u201cok\u201d");
    EXPECT_EQ(richtext::read("{\\rtf1\\ansi\\ansicpg1251 \\'e0\\'e1\\par}"), "\u0430\u0431");
}

TEST(RichText, FilesFailAsTheControlsDid) {
    QTemporaryDir dir;
    const QString path = dir.filePath("p.rpw");
    richtext::saveFile(path, "<b>x</b>\r\n");
    EXPECT_EQ(richtext::loadFile(path), "<b>x</b>\r\n");
    EXPECT_EQ(test::failureOf([&] { richtext::loadFile(dir.filePath("none.rpw")); }),
              RuntimeFailure::FileNotFound);
    EXPECT_EQ(test::failureOf([&] { richtext::loadFile(dir.path()); }), 75);
    EXPECT_EQ(test::failureOf([&] { richtext::saveFile(dir.filePath("no/such.rpw"), "x"); }),
              RuntimeFailure::PathNotFound);
}
