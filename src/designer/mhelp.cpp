#include "mhelp.h"

#include "morvane.h"

#include "platform/dialogparts.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

namespace {

const char* const kIntroduction =
    "Morvane lets you draw an HTML form by eye and then writes its code for you.\n\n"
    "The work area starts with a rectangular box, the form box: arrange your elements "
    "inside it. Like any element, the box can be selected with a click and deleted.\n\n"
    "Click an element to select it, and drag it to move it; the cursor keys move a "
    "selected element in small steps. Drag the nodes on its edges to change its size. "
    "A second click edits the element's text, and a click outside it keeps the change.\n\n"
    "Each Insert button builds one field into the Generated Field strip under the work "
    "area. Click the field there to select it, then drag it into the work area.\n\n"
    "Preview in the File menu shows the form as a visitor sees it; the same command "
    "ends the preview. A form can be saved half way through and opened again later to "
    "carry on.\n\n"
    "Press a button above to read about each kind of field.";

struct Topic {
    const char* button;
    const char* text;
};

// In the order the buttons stand.
const Topic kTopics[] = {
    {"btnText", "Text Box: a one-line field for the visitor's words. It takes a name and, "
                "if you like, a default text, a size, a longest length and a tab index; it "
                "can be read-only, or a password field that hides what is typed."},
    {"btnLabel", "Label: a piece of text with a place of its own, \"New Label\" at first. "
                 "Drag it into the form, then click it a second time to type your own words; "
                 "a click outside keeps them."},
    {"btnButton", "Button: a plain push button, a button that sends the form, or one that "
                  "clears it. Its value is the text written on it."},
    {"btnTextArea", "Text Area: a field of several lines. Its width counts characters and "
                    "its height lines, and it may hold a default text."},
    {"btnRadio", "Radio Button: one choice out of a group. Radio buttons that share a name "
                 "make one group, of which only one can be on. To have one on at first, "
                 "select it in the work area and click it."},
    {"btnCheckBox", "Check Box: a choice ticked on its own. To have it ticked at first, "
                    "select it in the work area and click it."},
    {"btnListBox", "List Box: a list that shows several points at once. Type each point and "
                   "press Enter to add it. To have points chosen at first, select the list in "
                   "the work area and then click those points."},
    {"btnDropDown", "Drop Down Box: a list that shows one point and opens when clicked. Its "
                    "points are added as in a List Box; the point clicked after selecting the "
                    "box in the work area is the one shown at first."},
    {"btnFieldSet", "Fieldset: a frame around related fields, with a caption on its edge if "
                    "you give one. Drag fields into it in the work area."},
    {"btnFile", "Browse Box: a field with a button with which the visitor picks a file to "
                "send with the form."},
    {"btnHidden", "Hidden Field: a name and a value sent with the form that the visitor "
                  "never sees."},
    {"btnGenerate", "Generate The Code: asks for the form's name, the address that receives "
                    "it (Action) and how it is sent (Method), then puts the finished form "
                    "where Morvane was opened from: at the caret of the source view, or into "
                    "the page of the visual view. Morvane stays open, so the design can be "
                    "changed and generated again."},
};

const FormatButton<morvane>* designerButton(const char* name) {
    for (const FormatButton<morvane>& row : morvaneButtons())
        if (qstrcmp(row.name, name) == 0)
            return &row;
    return nullptr;
}

} // namespace

MHelp::MHelp(FormRegistry& forms) : Form(forms) {
    auto* window = new DialogWindow(QStringLiteral("MHelp"), QStringLiteral("Morvane: Help"));
    setWindow(window);
    auto* column = new QVBoxLayout(window);
    auto* grid = new QGridLayout;
    column->addLayout(grid);
    int i = 0;
    for (const Topic& topic : kTopics) {
        const FormatButton<morvane>* twin = designerButton(topic.button);
        QPushButton* button = makeButton(window, topic.button, QString::fromUtf8(twin->text));
        button->setToolTip(QString::fromUtf8(twin->tip));
        onClick(button, [this, name = QString::fromLatin1(topic.button)] { explain(name); });
        grid->addWidget(button, i / 4, i % 4);
        ++i;
    }
    ui.lblHelp = new QLabel(window);
    ui.lblHelp->setObjectName(QStringLiteral("lblHelp"));
    ui.lblHelp->setWordWrap(true);
    ui.lblHelp->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    ui.lblHelp->setMinimumSize(520, 300);
    ui.lblHelp->setFrameShape(QFrame::StyledPanel);
    ui.lblHelp->setMargin(8);
    column->addWidget(ui.lblHelp, 1);
    ui.OKButton = makeButton(window, "OKButton", QStringLiteral("Close"));
    column->addWidget(ui.OKButton, 0, Qt::AlignRight);
    window->setCancelButton(ui.OKButton);
    onClick(ui.OKButton, [this] { unload(); });
}

MHelp::~MHelp() = default;

void MHelp::load() {
    ui.lblHelp->setText(QString::fromUtf8(kIntroduction));
}

void MHelp::explain(const QString& button) {
    for (const Topic& topic : kTopics)
        if (button == QLatin1String(topic.button))
            ui.lblHelp->setText(QString::fromUtf8(topic.text));
}

} // namespace zt
