#include "platform/textfiles.h"
#include "support/testprogram.h"
#include "testhelpers.h"

#include <QDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace zt;
using namespace zt::test;

TEST(TextFiles, ReadsByMarkThenUtf8ThenTheDeclaredCharsetThenWindows1252) {
    QTemporaryDir dir;
    const QString path = dir.filePath("page.html");
    struct Case {
        QByteArray bytes;
        QByteArray charset;
        bool mark;
        QString shown;
    } cases[] = {
        {"<P>plain</P>", "UTF-8", false, "plain"},
        {"<P>caf\xC3\xA9</P>", "UTF-8", false, QString::fromUtf8("café")},
        {"\xEF\xBB\xBF<P>caf\xC3\xA9</P>", "UTF-8", true, QString::fromUtf8("<P>café")},
        {QByteArray("\xFF\xFE<\0P\0>\0\xE9\0", 10), "UTF-16LE", true, QString::fromUtf8("<P>é")},
        {"<meta charset=\"ISO-8859-15\"><P>\xA4</P>", "iso-8859-15", false, QString::fromUtf8("€")},
        {"<META http-equiv=\"Content-Type\" content=\"text/html; "
         "charset=Shift_JIS\">\x93\xFA\x96\x7B",
         "shift_jis", false, QString::fromUtf8("日本")},
        // Latin-1 is read as the superset browsers read it as; a declared UTF-8
        // that is not valid UTF-8, or a charset nobody knows, falls back.
        {"<meta charset=iso-8859-1><P>\x80</P>", "windows-1252", false, QString::fromUtf8("€")},
        {"<meta charset=utf-8><P>caf\xE9</P>", "windows-1252", false, QString::fromUtf8("café")},
        {"<meta charset=x-nonsense><P>\x93q\x94</P>", "windows-1252", false,
         QString::fromUtf8("“q”")},
    };
    for (const Case& c : cases) {
        writeFile(path, QString::fromLatin1(c.bytes));
        const textfiles::TextFile file = textfiles::read(path);
        EXPECT_EQ(file.encoding.charset, c.charset) << c.bytes.toStdString();
        EXPECT_EQ(file.encoding.byteOrderMark, c.mark) << c.bytes.toStdString();
        EXPECT_TRUE(file.text.contains(c.shown)) << file.text.toStdString();
        EXPECT_FALSE(file.text.contains(QChar(0xFEFF))) << "the mark is not text";
        textfiles::write(path, file.text);
        EXPECT_EQ(readFile(path).toLatin1(), c.bytes) << "written back as read";
    }
}

TEST(TextFiles, WhatTheCodePageCannotHoldIsWrittenAsACharacterReference) {
    const QString typed = QString::fromUtf8("é€✓😀");
    EXPECT_EQ(textfiles::encode(typed, {"windows-1252", false}), "\xE9\x80&#10003;&#128512;");
    EXPECT_EQ(textfiles::encode(typed, {"iso-8859-15", false}), "\xE9\xA4&#10003;&#128512;");
    EXPECT_EQ(textfiles::encode(typed, {"UTF-8", true}), "\xEF\xBB\xBF" + typed.toUtf8());
}

TEST(TextFiles, ReadAndWriteFailuresAndTheOldFileKeptOnAFullDisk) {
    QTemporaryDir dir;
    QDir(dir.path()).mkdir("folder");
    struct Case {
        const char* what;
        std::function<void()> body;
        int number;
    } cases[] = {
        {"read missing", [&] { textfiles::read(dir.filePath("gone.html")); }, 53},
        {"read folder", [&] { textfiles::read(dir.filePath("folder")); }, 75},
        // Root reads a file of mode 000; this one refuses even root.
        {"read refused", [] { textfiles::read("/proc/self/mem"); }, 75},
        {"read device", [] { textfiles::read("/dev/zero"); }, 75},
        {"write folder", [&] { textfiles::write(dir.filePath("folder"), "x"); }, 75},
        {"write full disk", [] { textfiles::write("/dev/full", "x"); }, 75},
        {"write no folder", [&] { textfiles::write(dir.filePath("no/page.html"), "x"); }, 76},
        {"write no name", [] { textfiles::write("", "x"); }, 52},
    };
    for (const Case& c : cases)
        EXPECT_EQ(failureOf(c.body), c.number) << c.what;

    // A disk that fills up halfway through leaves the old file whole. The file size
    // limit stands in for the full disk.
    const QString path = dir.filePath("kept.html");
    writeFile(path, "old text");
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit full{100, limit.rlim_max};
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    const int number = failureOf([&] { textfiles::write(path, QString(1000, 'x')); });
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(number, 75);
    EXPECT_EQ(readFile(path), "old text");
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{"kept.html"});
}
