#include "platform/linebreaks.h"

#include <gtest/gtest.h>

using namespace zt;

namespace {

QString q(const char* text) {
    return QString::fromLatin1(text);
}

} // namespace

TEST(TextLineBreaks, TextsTranslateBothWays) {
    EXPECT_EQ(linebreaks::toDocument(u"a\r\nb\rc\nd\r\n"), q("a\nb\nc\nd\n"));
    EXPECT_EQ(linebreaks::toModel(u"a\nb\r\nc\rd"), q("a\r\nb\r\nc\r\nd"));
    EXPECT_EQ(linebreaks::toModel(u"a\u2029b\u2028c"), q("a\r\nb\r\nc"));
    EXPECT_EQ(linebreaks::toModel(u"\r\r\n\n"), q("\r\n\r\n\r\n"));
}

TEST(TextLineBreaks, PositionsMapAcrossEveryKindOfBreak) {
    // Model "ab\r\nc\rd\ne\r\n" (11) shows as "ab\nc\nd\ne\n" (9).
    const QString model = q("ab\r\nc\rd\ne\r\n");
    struct Case {
        int modelPosition;
        int documentPosition;
    };
    const Case toDocument[] = {{0, 0}, {2, 2}, {3, 3},  {4, 3},  {5, 4},  {6, 5},
                               {8, 7}, {9, 8}, {10, 9}, {11, 9}, {40, 9}, {-3, 0}};
    for (const Case& c : toDocument)
        EXPECT_EQ(linebreaks::toDocumentPosition(model, c.modelPosition), c.documentPosition)
            << c.modelPosition;
    // Back from the document a break is never split: 3 is behind the CR LF.
    const Case toModel[] = {{0, 0}, {2, 2}, {4, 3},  {5, 4},   {6, 5},
                            {8, 7}, {9, 8}, {11, 9}, {11, 30}, {0, -1}};
    for (const Case& c : toModel)
        EXPECT_EQ(linebreaks::toModelPosition(model, c.documentPosition), c.modelPosition)
            << c.documentPosition;
}

// The replacement must rebuild the new text, and the same replacement carried to the
// document must rebuild the new document: that is what the editor relies on.
TEST(TextLineBreaks, DifferenceMapsOntoWholeBreaks) {
    const std::pair<const char*, const char*> cases[] = {
        {"abc", "abc"},         {"abc", "aXc"},
        {"", "a\r\nb"},         {"a\r\nb", ""},
        {"a\r\nb", "ab"},       {"ab", "a\r\nb"},
        {"a\r\nb", "a\r\r\nb"}, {"a\r\nb", "a\r\n\r\nb"},
        {"a\rb", "a\r\nb"},     {"a\nb", "a\r\nb"},
        {"a\r", "a\r\n"},       {"\nb", "\r\nb"},
        {"a\r\n", "a\r"},       {"x\r\n\r\ny", "x\r\ny"},
        {"aaa", "aaaa"},        {"a\r\nb\r\nc", "a\r\nX\r\nc"},
    };
    for (const auto& [beforeText, afterText] : cases) {
        const QString before = q(beforeText);
        const QString after = q(afterText);
        const linebreaks::Replacement change = linebreaks::difference(before, after);
        SCOPED_TRACE((before + QStringLiteral(" -> ") + after).toStdString());
        EXPECT_EQ(QString(before).replace(change.start, change.removed, change.inserted), after);

        const int from = linebreaks::toDocumentPosition(before, change.start);
        const int to = linebreaks::toDocumentPosition(before, change.start + change.removed);
        EXPECT_EQ(linebreaks::toDocument(before).replace(from, to - from,
                                                         linebreaks::toDocument(change.inserted)),
                  linebreaks::toDocument(after));
    }
}
