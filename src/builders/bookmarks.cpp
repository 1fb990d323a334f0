#include "bookmarks.h"

#include "linkgen.h"

#include "shell/zelvo.h"

#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"
#include "platform/vbstrings.h"

#include <QListWidget>
#include <QPushButton>

namespace zt {

bookmarks::bookmarks(FormRegistry& forms)
    : ElementDialog(forms, {.name = "bookmarks",
                            .caption = QStringLiteral("Bookmarks : Zelvo"),
                            .helpPage = QStringLiteral("bmark.zhp"),
                            .shape = Dispatch::SourceOnly}) {
    build(ui.compOrEdit,
          {
              // control, caption, default, place
              {text("txtBookmark", ui.txtBookmark, ui.txtBookmarkView), "&New bookmark:"},
              {button("btnAdd", ui.btnAdd), "&Add", "", Place::Accept},
              {list("listBookMarks", ui.listBookMarks, {}), "&Bookmarks in this page:", "",
               Place::Line},
              {list("listAddress", ui.listAddress, {}), "", "", Place::Line},
              {button("btnGo", ui.btnGo), "&Go To", "", Place::Row},
              {button("CancelButton", ui.CancelButton), "Close", "", Place::Cancel},
              {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
          });
    ui.compOrEdit.setText(caller::kEdit);
    ui.listAddress->hide();
    onClick(ui.btnGo, [this] { btnGo_Click(); });
}

bookmarks::~bookmarks() = default;

QString bookmarks::fragment() {
    return bookmarkTag(ui.txtBookmark.text(), ui.compOrEdit.text() == caller::kEdit);
}

void bookmarks::btnGo_Click() {
    const int row = ui.listBookMarks->currentRow();
    if (row < 0 || !ui.listBookMarks->currentItem()->isSelected()) {
        services().prompts->msgBox(QStringLiteral("No Bookmark Selected"), vbExclamation,
                                   QStringLiteral("Assistant: Zelvo"));
    } else if (QListWidgetItem* address = ui.listAddress->item(row)) {
        ui.listAddress->setCurrentRow(row);
        TextControl& area = forms().get<Zelvo>().ui.area;
        const int at = vb::InStr(area.text(), address->text());
        if (at > 0) {
            area.setSelStart(at - 1);
            area.setSelLength(int(address->text().size()));
        }
    }
    unload();
}

void bookmarkScan(FormRegistry& forms, QListWidget* names) {
    const QString text = forms.get<Zelvo>().ui.area.text();
    QListWidget* tags = forms.get<bookmarks>().ui.listAddress;
    for (const ScannedBookmark& found : scanBookmarks(text)) {
        tags->addItem(found.tag);
        names->addItem(found.name);
    }
}

} // namespace zt
