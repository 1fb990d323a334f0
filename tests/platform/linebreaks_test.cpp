#include "platform/linebreaks.h"
#include "testhelpers.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <vector>

using namespace zt;
using zt::test::q;

namespace {

// The meaning of the positions, walked character by character: the document (breaks as
// "\n", a "\n" in front of every display break), the document position of every model
// position, and the model position of every document position.
struct NaivePositions {
    QString shown;
    std::vector<int> toDocument;
    std::vector<int> toModel{0};

    explicit NaivePositions(const QString& model, const std::vector<int>& cuts = {}) {
        std::size_t cut = 0;
        for (qsizetype i = 0; i < model.size(); ++i) {
            if (cut < cuts.size() && cuts[cut] == i) {
                shown += u'\n', toModel.push_back(int(i)), ++cut;
            }
            toDocument.push_back(int(shown.size()));
            const bool pair = model[i] == u'\r' && i + 1 < model.size() && model[i + 1] == u'\n';
            if (pair) // between the CR and the LF: behind the break
                toDocument.push_back(int(shown.size() + 1)), ++i;
            shown += model[i] == u'\r' ? QChar(u'\n') : model[i];
            toModel.push_back(int(i + 1));
        }
        toDocument.push_back(int(shown.size()));
    }
};

// Lines of random length, made of letters, blanks, ends of tags and statements and
// characters outside the BMP, with a break of any kind every `breaks` characters or so.
QString randomLines(std::mt19937& random, int length, int breaks) {
    static const char16_t* const parts[] = {u"\r\n", u"\r", u"\n", u"\U0001F600", u"a",
                                            u" ",    u">",  u";",  u"b"};
    QString text;
    while (text.size() < length) {
        const unsigned part = random() % unsigned(breaks) == 0 ? random() % 3 : 3 + random() % 6;
        text += QString::fromUtf16(parts[part]);
    }
    return text;
}

} // namespace

TEST(TextLineBreaks, TextsTranslateBothWays) {
    EXPECT_EQ(linebreaks::toDocument(u"a\r\nb\rc\nd\r\n"), q("a\nb\nc\nd\n"));
    EXPECT_EQ(linebreaks::toModel(u"a\nb\r\nc\rd"), q("a\r\nb\r\nc\r\nd"));
    EXPECT_EQ(linebreaks::toModel(u"a\u2029b\u2028c"), q("a\r\nb\r\nc"));
    EXPECT_EQ(linebreaks::toModel(u"\r\r\n\n"), q("\r\n\r\n\r\n"));
}

// Edits of every size anywhere, many cutting or making CR LF pairs or long lines, with
// pieces and lines so short that most edits meet a cut of the map: after each one the
// document the map's edits built must be the text with its display breaks, every
// position must map as a walk of that document says, and the cuts must keep lines short
// and stay out of breaks and surrogate pairs.
TEST(TextLineBreaks, PositionMapFollowsEditsAsAWalkOfTheText) {
    const struct {
        int pieceLength, longestLine, length, breaks;
    } walks[] = {{1, 16, 200, 2},
                 {3, 16, 1000, 40},
                 {8, 40, 3000, 300},
                 {64, 300, 8000, 2000},
                 {linebreaks::PositionMap::kPieceLength, linebreaks::PositionMap::kLongestLine,
                  30000, 20000}};
    for (const auto& walk : walks) {
        SCOPED_TRACE(walk.longestLine);
        std::mt19937 random(walk.pieceLength);
        QString text = randomLines(random, walk.length, walk.breaks);
        linebreaks::PositionMap map(walk.pieceLength, walk.longestLine);
        map.reset(text);
        QString shown = map.documentText(text);
        for (int edit = 0; edit <= 200; ++edit) {
            const NaivePositions want(text, map.displayBreaks());
            ASSERT_EQ(shown, want.shown) << edit;
            ASSERT_EQ(map.withoutDisplayBreaks(text, shown), linebreaks::toDocument(text));
            for (const QString& line : shown.split(u'\n'))
                ASSERT_LE(line.size(), walk.longestLine) << edit;
            for (const int cut : map.displayBreaks()) {
                const QString around = text.mid(cut - walk.longestLine / 8, walk.longestLine / 4);
                ASSERT_FALSE(around.contains(u'\r') || around.contains(u'\n'))
                    << edit << " " << cut;
                ASSERT_FALSE(text[cut - 1].isHighSurrogate() && text[cut].isLowSurrogate());
            }
            for (int p = 0; p <= text.size(); p += 1 + int(random() % 97))
                ASSERT_EQ(map.toDocumentPosition(text, p), want.toDocument[p]) << edit << " " << p;
            for (int d = 0; d < int(want.toModel.size()); d += 1 + int(random() % 97))
                ASSERT_EQ(map.toModelPosition(text, d), want.toModel[d]) << edit << " " << d;
            // Out of range on either side is clamped to the ends.
            ASSERT_EQ(map.toModelPosition(text, int(want.toModel.size()) + 5), text.size());
            ASSERT_EQ(map.toModelPosition(text, -1), 0);
            ASSERT_EQ(map.toDocumentPosition(text, int(text.size()) + 9), want.toDocument.back());
            ASSERT_EQ(map.toDocumentPosition(text, -3), 0);

            const int start = int(random() % (text.size() + 1));
            const int longest = edit % 10 == 0 ? walk.length / 3 : 3;
            const int removed =
                int(std::min<qsizetype>(random() % (longest + 1), text.size() - start));
            const QString after = QString(text).replace(
                start, removed, randomLines(random, int(random() % (longest + 1)), walk.breaks));
            const linebreaks::Replacement whole = linebreaks::difference(text, after);
            const linebreaks::DocumentEdit shownEdit = map.replaced(
                after, whole.start, QStringView(text).sliced(whole.start, whole.removed),
                int(whole.inserted.size()));
            shown.replace(shownEdit.start, shownEdit.removed, shownEdit.inserted);
            text = after;
        }
    }
}
