#include "platform/linebreaks.h"
#include "testhelpers.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

using namespace zt;
using zt::test::q;
using zt::test::randomText;

namespace {

// The meaning of the positions, walked character by character: the document position
// of every model position, and the model position of every document position.
struct NaivePositions {
    std::vector<int> toDocument;
    std::vector<int> toModel;

    explicit NaivePositions(const QString& model) {
        int document = 0;
        toModel.push_back(0);
        for (qsizetype i = 0; i < model.size(); ++i) {
            toDocument.push_back(document);
            const bool pair = model[i] == u'\r' && i + 1 < model.size() && model[i + 1] == u'\n';
            if (pair) // between the CR and the LF: behind the break
                toDocument.push_back(++document), ++i;
            else
                ++document;
            toModel.push_back(int(i + 1));
        }
        toDocument.push_back(document);
    }
};

} // namespace

TEST(TextLineBreaks, TextsTranslateBothWays) {
    EXPECT_EQ(linebreaks::toDocument(u"a\r\nb\rc\nd\r\n"), q("a\nb\nc\nd\n"));
    EXPECT_EQ(linebreaks::toModel(u"a\nb\r\nc\rd"), q("a\r\nb\r\nc\r\nd"));
    EXPECT_EQ(linebreaks::toModel(u"a\u2029b\u2028c"), q("a\r\nb\r\nc"));
    EXPECT_EQ(linebreaks::toModel(u"\r\r\n\n"), q("\r\n\r\n\r\n"));
}

// Edits of every size anywhere, many cutting or making CR LF pairs, with pieces so
// short that most edits meet a cut of the map: after each one every position must
// still map as a walk of the text says.
TEST(TextLineBreaks, PositionMapFollowsEditsAsAWalkOfTheText) {
    const std::pair<int, int> piecesAndLength[] = {
        {1, 200}, {3, 1000}, {8, 3000}, {64, 8000}, {linebreaks::PositionMap::kPieceLength, 30000}};
    for (const auto& [pieceLength, length] : piecesAndLength) {
        SCOPED_TRACE(pieceLength);
        std::mt19937 random(pieceLength);
        QString text = randomText(random, length);
        linebreaks::PositionMap map(pieceLength);
        map.reset(text);
        for (int edit = 0; edit < 200; ++edit) {
            const int start = int(random() % (text.size() + 1));
            const int longest = edit % 10 == 0 ? length / 3 : 3;
            const int removed =
                int(std::min<qsizetype>(random() % (longest + 1), text.size() - start));
            const QString inserted = randomText(random, int(random() % (longest + 1)));
            text.replace(start, removed, inserted);
            map.replaced(text, start, removed, int(inserted.size()));

            const NaivePositions want(text);
            for (int p = 0; p <= text.size(); p += 1 + int(random() % 97))
                ASSERT_EQ(map.toDocumentPosition(text, p), want.toDocument[p]) << edit << " " << p;
            for (int d = 0; d < int(want.toModel.size()); d += 1 + int(random() % 97))
                ASSERT_EQ(map.toModelPosition(text, d), want.toModel[d]) << edit << " " << d;
            // Out of range on either side is clamped to the ends.
            ASSERT_EQ(map.toModelPosition(text, int(want.toModel.size()) + 5), text.size());
            ASSERT_EQ(map.toModelPosition(text, -1), 0);
            ASSERT_EQ(map.toDocumentPosition(text, int(text.size()) + 9), want.toDocument.back());
            ASSERT_EQ(map.toDocumentPosition(text, -3), 0);
        }
    }
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

        const NaivePositions positions(before);
        const int from = positions.toDocument[change.start];
        const int to = positions.toDocument[change.start + change.removed];
        EXPECT_EQ(linebreaks::toDocument(before).replace(from, to - from,
                                                         linebreaks::toDocument(change.inserted)),
                  linebreaks::toDocument(after));
    }
}
