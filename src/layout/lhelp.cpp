#include "lhelp.h"

#include "platform/dialogparts.h"
#include "platform/texteditview.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

namespace {

using U = LHelp::Ui;

const struct Topic {
    QPushButton* U::*button;
    const char* name;
    const char* caption;
    const char* text;
} kTopics[] = {
    {&U::btnIntro, "btnIntro", "Introduction",
     "A layout is the skeleton of a page: the rectangular areas that will hold the banner, the "
     "navigation, the columns of text and the footer, each at its own place and size.\r\n\r\n"
     "The Layout Manager lets you place such boxes with great precision. Start from one of the "
     "sample layouts at the top of the window, or from the blank page, and change it until it "
     "fits your page: add boxes, move them, size them, and delete the ones you do not need.\r\n\r\n"
     "Click a box to select it. Drag it to move it, drag one of the small squares on its frame "
     "to change its size, or move it one pixel at a time with the cursor keys. Click a selected "
     "box once more to type text into it, and press Esc to stop typing. The Delete key removes "
     "a selected box.\r\n\r\n"
     "Clicking a sample replaces everything in the work area at once, without asking, so save "
     "your layout first if you want to keep it."},
    {&U::btnAddNew, "btnAddNew", "Adding Boxes",
     "Press Add New Box to make a box. The Box Properties window asks for:\r\n\r\n"
     "- a name: it becomes the box's id. Give every box its own name; a style sheet can then "
     "address the box later (for example #menu { ... }). Left empty, the name is LayoutBox.\r\n"
     "- a background colour: a colour name, a #RRGGBB value, or one picked with the button "
     "beside the field.\r\n"
     "- the borders: All Borders Similar gives the four sides the same type, thickness and "
     "colour; Individual Border Properties sets each side on its own. Only the fields of the "
     "option that is on count. The arrows beside a thickness make it larger or smaller.\r\n\r\n"
     "After OK the new box shows up in the small box on the left of the window. Drag it from "
     "there into the main area and drop it where it belongs, then drag its frame to give it "
     "its size: every new box starts 40 by 30 pixels. The small box keeps the box until you "
     "make the next one, so you can drop it as many times as you like."},
    {&U::btnLoadSave, "btnLoadSave", "Load and Save",
     "Save Layout writes the layout to a file of its own, a \"*.lyt\" file, so that you can "
     "use it again for other pages or go on with it another day. Save asks for the file's "
     "name every time, and replaces a file of that name without asking.\r\n\r\n"
     "Load Layout opens a \"*.lyt\" file and puts its layout in the work area in place of "
     "the one there. A file that cannot be read, or one too large for a layout, is passed "
     "over and the work area stays as it was.\r\n\r\n"
     "It is a good habit to save the layout before you use it in your page."},
    {&U::btnEditHTML, "btnEditHTML", "Edit HTML",
     "Edit HTML shows the layout as HTML text, for the changes that are quicker to type than "
     "to draw: a size to the exact pixel, a name, a colour, text in a box. The Layout Manager "
     "is hidden meanwhile.\r\n\r\n"
     "OK puts the text back into the work area as the new layout; Cancel, or closing the "
     "window, leaves the layout as it was. Either way the Layout Manager comes back."},
    {&U::btnFinal, "btnFinal", "Using the Layout",
     "When the layout is ready, press Use Layout. It asks how the layout should go into your "
     "page:\r\n\r\n"
     "- Yes replaces the page: opened from the visual view, the whole page becomes the "
     "layout.\r\n"
     "- No inserts the layout into the page as it is, at the caret.\r\n"
     "- Cancel goes back to the Layout Manager, with nothing changed.\r\n\r\n"
     "Opened from the source view, Yes and No both insert the layout at the caret, in place "
     "of any selected text; the rest of the page stays.\r\n\r\n"
     "The Layout Manager then closes and its layout is gone, so save it first if you may want "
     "it again. Fill the boxes with your text and pictures in the page itself."},
};

} // namespace

LHelp::LHelp(FormRegistry& forms) : Form(forms) {
    auto* window = new DialogWindow(QStringLiteral("LHelp"), QStringLiteral("Layout: Help"));
    setWindow(window);
    auto* column = new QVBoxLayout(window);
    auto* buttons = new QHBoxLayout;
    column->addLayout(buttons);
    for (const Topic& topic : kTopics) {
        QPushButton* button = makeButton(window, topic.name, QString::fromLatin1(topic.caption));
        ui.*topic.button = button;
        onClick(button, [this, name = QString::fromLatin1(topic.name)] { explain(name); });
        buttons->addWidget(button);
    }
    ui.txtHelpView = new TextEditView(ui.txtHelp, window);
    ui.txtHelpView->setObjectName(QStringLiteral("txtHelp"));
    ui.txtHelpView->setReadOnly(true);
    column->addWidget(ui.txtHelpView, 1);
    window->resize(620, 460);
}

LHelp::~LHelp() = default;

void LHelp::load() {
    explain(QStringLiteral("btnIntro"));
}

void LHelp::explain(const QString& button) {
    for (const Topic& topic : kTopics)
        if (button == QLatin1String(topic.name))
            ui.txtHelp.setText(QString::fromLatin1(topic.text));
}

} // namespace zt
