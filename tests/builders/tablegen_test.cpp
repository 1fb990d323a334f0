#include "builders/tablegen.h"

#include "support/failureof.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

const QString kDefaultRows =
    "\r\n\r\n<tr>\r\n   <td> Row 1 Col 1</td>\r\n   <td> Row 1 Col 2</td>\r\n"
    "</tr>\r\n\r\n<tr>\r\n   <td> Row 2 Col 1</td>\r\n"
    "   <td> Row 2 Col 2</td>\r\n</tr>\r\n</TABLE>";

TEST(TableMarkup, AttributesStyleAlignmentAndCells) {
    const struct {
        const char* name;
        TableValues values;
        QString markup;
    } cases[] = {
        {"defaults", {}, R"(<TABLE border="1" width="100%">)" + kDefaultRows},
        {"Right wraps in a div as Left and Centre do, but only the exact texts",
         {.align = "Right"},
         "<div align=\"right\">\r\n<TABLE border=\"1\" width=\"100%\">" + kDefaultRows +
             "\r\n</div>"},
        {"the remembered default left matches nothing",
         {.align = "left"},
         R"(<TABLE border="1" width="100%">)" + kDefaultRows},
        {"padding 00 is written, only 0 is left out",
         {.cellPadding = "00", .cellSpacing = "3", .pixels = true, .colour = "#FF0000"},
         R"(<TABLE border="1" cellpadding="00" cellspacing="3" bgcolor="#FF0000" width="100">)" +
             kDefaultRows},
        {"no width when not asked, whatever the field holds",
         {.border = "", .specifyWidth = false, .width = "77"},
         R"(<TABLE border="">)" + kDefaultRows},
        {"the first row of a list writes nothing, the caption comes after the tag",
         {.borderCollapse = {0, "collapse"}, .captionSide = {0, "top"}, .caption = "Prices"},
         R"(<TABLE border="1" width="100%"><caption>Prices</caption>)" + kDefaultRows},
        {"later rows write their property; spacing never",
         {.captionSide = {1, "bottom"},
          .tableLayout = {1, "fixed"},
          .spacing1 = "2px",
          .spacing2 = "4px"},
         R"(<TABLE border="1" width="100%" style=" caption-side: bottom; table-layout: fixed;">)" +
             kDefaultRows},
        {"empty cells, 2.5 rows make three, 0 columns make bare rows",
         {.rows = "2.5", .cols = "0", .emptyTable = true},
         "<TABLE border=\"1\" width=\"100%\">\r\n\r\n<tr>\r\n</tr>\r\n\r\n<tr>\r\n</tr>"
         "\r\n\r\n<tr>\r\n</tr>\r\n</TABLE>"},
        {"zero rows: the tags alone",
         {.rows = "0", .cols = "", .border = "0"},
         "<TABLE border=\"0\" width=\"100%\">\r\n</TABLE>"},
        {"typed text goes in as typed",
         {.rows = "1", .cols = "1", .width = "50\" onclick=\"x", .emptyTable = true},
         "<TABLE border=\"1\" width=\"50\" onclick=\"x%\">\r\n\r\n<tr>\r\n   <td> </td>\r\n"
         "</tr>\r\n</TABLE>"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(tableMarkup(c.values), c.markup);
    }
}

TEST(TableMarkup, RowsOfTheInsertRowsDialog) {
    EXPECT_EQ(rowsMarkup({}), "<tr bgcolor=\"none\">\r\n   <td> New Row 1 Col 1</td>\r\n"
                              "   <td> New Row 1 Col 2</td>\r\n</tr>\r\n\r\n"
                              "<tr bgcolor=\"none\">\r\n   <td> New Row 2 Col 1</td>\r\n"
                              "   <td> New Row 2 Col 2</td>\r\n</tr>");
    EXPECT_EQ(rowsMarkup({.rows = "1", .cols = "1", .colour = "#00FF00", .emptyTable = true}),
              "<tr bgcolor=\"#00FF00\">\r\n   <td> </td>\r\n</tr>");
    EXPECT_EQ(rowsMarkup({.rows = "0"}), "");
}

TEST(TableMarkup, CountsThatCannotBeReadFail) {
    const struct {
        const char* name;
        std::function<QString()> make;
        int failure;
    } cases[] = {
        {"empty rows", [] { return tableMarkup({.rows = ""}); }, RuntimeFailure::TypeMismatch},
        {"empty columns", [] { return tableMarkup({.cols = ""}); }, RuntimeFailure::TypeMismatch},
        {"words", [] { return rowsMarkup({.rows = "two"}); }, RuntimeFailure::TypeMismatch},
        {"beyond the counter", [] { return tableMarkup({.rows = "32768", .cols = "0"}); },
         RuntimeFailure::Overflow},
        {"columns beyond it", [] { return rowsMarkup({.rows = "1", .cols = "40000"}); },
         RuntimeFailure::Overflow},
    };
    for (const auto& c : cases)
        EXPECT_EQ(failureOf([&] { c.make(); }), c.failure) << c.name;
}

TEST(TableMarkup, TheGridCountsByTheDigitsOfTheCell) {
    const auto shape = [](const QString& markup) {
        return std::pair(int(markup.count("<tr>")), int(markup.count("<td>")));
    };
    EXPECT_EQ(shape(gridTableMarkup(23, false)), std::pair(3, 12));
    EXPECT_EQ(shape(gridTableMarkup(0, false)), std::pair(1, 1));
    EXPECT_EQ(shape(gridTableMarkup(99, true)), std::pair(10, 100));
    EXPECT_EQ(gridTableMarkup(10, false),
              "<TABLE border=1>\r\n<tr>\r\n   <td> </td>\r\n</tr>\r\n<tr>\r\n   <td> </td>\r\n"
              "</tr>\r\n</TABLE>");
}
