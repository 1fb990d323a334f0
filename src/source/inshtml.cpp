#include "inshtml.h"

#include "shell/tessara.h"

#include "platform/formregistry.h"

#include <QLabel>
#include <QPushButton>

namespace zt {

insHTML::insHTML(FormRegistry& forms)
    : ElementDialog(forms, {.name = "insHTML",
                            .caption = QStringLiteral("Insert HTML Into Tessara : Zelvo"),
                            .shape = Dispatch::VisualOnly}) {
    const auto hint = [](QWidget* parent) {
        auto* label = new QLabel(
            QStringLiteral("Example:   <b> Some text </b>   - This appears in the tessara"),
            parent);
        label->setTextFormat(Qt::PlainText);
        return label;
    };
    build({
        // control, caption, default, place
        {memo("theTags", ui.theTags, ui.theTagsView), "", "", Place::Line},
        {widget("lblExample", hint), "", "", Place::Line},
        {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
        {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
    });
    window()->resize(460, 240);
}

insHTML::~insHTML() = default;

void Tessara::mnuHTML() {
    forms().get<insHTML>().show();
}

} // namespace zt
