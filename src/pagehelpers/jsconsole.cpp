#include "jsconsole.h"

#include "jsevents.h"

#include "builders/formbutton.h"
#include "builders/formfile.h"
#include "builders/formform.h"
#include "builders/formradchk.h"
#include "builders/formtextarea.h"
#include "builders/formtextbox.h"
#include "builders/frmimage.h"
#include "builders/hyperlinks.h"
#include "shell/modapi.h"
#include "shell/tessara.h"

#include "platform/dialogparts.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/texteditview.h"
#include "platform/vbstrings.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

namespace {

using Opener = void (*)(FormRegistry&);

// Opens dialog D for the console, with the kind of element on where it has several.
template <class D, QRadioButton* D::Ui::*kind = nullptr> void openFor(FormRegistry& forms) {
    D& dialog = dialogFor<D>(forms, caller::kConsole);
    if constexpr (kind != nullptr)
        (dialog.ui.*kind)->setChecked(true);
    dialog.show();
}

// "What would you like to insert?": each element, the events it offers in the order
// the list shows them, and the dialog that makes its tag.
struct Item {
    const char* name;
    QStringList events;
    Opener open;
};

const std::vector<Item>& items() {
    static const std::vector<Item> rows{
        {"Button",
         {"click", "blur", "focus", "mouseDown", "mouseUp", "mouseOver"},
         openFor<formButton, &formButton::Ui::radButton>},
        {"CheckBox", {"click", "blur", "focus"}, openFor<formRadChk, &formRadChk::Ui::radCheckbox>},
        {"File Upload", {"change", "blur", "focus"}, openFor<formFile>},
        {"Form", {"submit", "reset"}, openFor<formForm>},
        {"Hyperlink",
         {"click", "dblClick", "mouseDown", "mouseUp", "mouseOver", "mouseOut", "keyDown", "keyUp",
          "keyPress"},
         openFor<hyperlinks>},
        {"Image", {"abort", "error", "load", "keyDown", "keyUp", "keyPress"}, openFor<frmImage>},
        {"Password", {"blur", "focus"}, openFor<formTextbox, &formTextbox::Ui::radYes>},
        {"Radio", {"click", "blur", "focus"}, openFor<formRadChk, &formRadChk::Ui::radRadio>},
        {"Reset", {"click", "blur", "focus"}, openFor<formButton, &formButton::Ui::radReset>},
        {"Submit", {"click", "blur", "focus"}, openFor<formButton, &formButton::Ui::radSubmit>},
        {"TextArea",
         {"blur", "focus", "change", "select", "keyDown", "keyUp", "keyPress"},
         openFor<formTextArea>},
        {"TextBox",
         {"blur", "focus", "change", "select"},
         openFor<formTextbox, &formTextbox::Ui::radNo>},
    };
    return rows;
}

QStringList itemNames() {
    QStringList names;
    for (const Item& item : items())
        names << QLatin1String(item.name);
    return names;
}

QStringList actionNames() {
    QStringList names;
    for (const jsevents::Action& action : jsevents::actions())
        names << QLatin1String(action.name);
    return names;
}

QString rowText(const QListWidget* list) {
    const QListWidgetItem* row = list->currentItem();
    return row && row->isSelected() ? row->text() : QString();
}

// The three lists share one height, tall enough for the longest list of elements,
// measured by the first, which has its rows from the start.
void sameHeight(std::initializer_list<QListWidget*> lists, int rows) {
    const QListWidget* first = *lists.begin();
    const int height = first->sizeHintForRow(0) * rows + 2 * first->frameWidth();
    for (QListWidget* list : lists)
        list->setFixedHeight(height);
}

} // namespace

JSConsole::JSConsole(FormRegistry& forms) : Form(forms) {
    auto* window =
        new DialogWindow(QStringLiteral("JSConsole"), QStringLiteral("JavaScript Console : Zelvo"));
    setWindow(window);
    auto* grid = new QGridLayout(window);
    const struct {
        Field field;
        const char* question;
    } columns[] = {
        {list("theListOfItems", ui.theListOfItems, itemNames()), "What would you like to &insert?"},
        {list("theListOfEvents", ui.theListOfEvents, {}), "&When should it happen?"},
        {list("listToBeDone", ui.listToBeDone, actionNames()), "What should &happen?"},
    };
    int column = 0;
    for (const auto& [field, question] : columns) {
        QWidget* made = field.make(window);
        auto* label = new QLabel(QString::fromLatin1(question), window);
        label->setBuddy(made);
        grid->addWidget(label, 0, column);
        grid->addWidget(made, 1, column++);
    }
    sameHeight({ui.theListOfItems, ui.theListOfEvents, ui.listToBeDone}, int(items().size()));
    ui.theListOfEvents->setEnabled(false);

    memo("theCode", ui.theCode, ui.theCodeView).make(window);
    auto* codeLabel = new QLabel(QStringLiteral("The &tag, as it will go into the page:"), window);
    codeLabel->setBuddy(ui.theCodeView);
    grid->addWidget(codeLabel, 2, 0, 1, -1);
    grid->addWidget(ui.theCodeView, 3, 0, 1, -1);
    grid->setRowStretch(3, 1);

    auto* foot = new QHBoxLayout;
    ui.btnIns = makeButton(window, "btnIns", QStringLiteral("Insert &different"));
    ui.btnok = makeButton(window, "btnok", QStringLiteral("OK"));
    ui.btnCancel = makeButton(window, "btnCancel", QStringLiteral("Cancel"));
    // Enter in a list must not finish the tag.
    for (QPushButton* button : {ui.btnIns, ui.btnok, ui.btnCancel})
        button->setAutoDefault(false);
    foot->addWidget(ui.btnIns);
    foot->addStretch(1);
    foot->addWidget(ui.btnok);
    foot->addWidget(ui.btnCancel);
    grid->addLayout(foot, 4, 0, 1, -1);
    window->setCancelButton(ui.btnCancel);
    window->resize(620, 480);

    const auto onRowClick = [](QListWidget* list, auto handler) {
        QObject::connect(list, &QListWidget::itemClicked, list,
                         guarded([handler](QListWidgetItem*) { handler(); }));
    };
    onRowClick(ui.theListOfItems, [this] { theListOfItems_Click(); });
    onRowClick(ui.listToBeDone, [this] { listToBeDone_Click(); });
    ui.theCode.addChangeHandler([this] { theCode_Change(); });
    onClick(ui.btnok, [this] { btnok_Click(); });
    onClick(ui.btnIns, [this] { btnIns_Click(); });
    onClick(ui.btnCancel, [this] { btnCancel_Click(); });
}

JSConsole::~JSConsole() = default;

void JSConsole::load() {
    stayOnTop(*this);
}

// One element at a time: the list stays off until "Insert different".
void JSConsole::theListOfItems_Click() {
    ui.theListOfEvents->clear();
    ui.theCode.setText(QString());
    const QString chosen = rowText(ui.theListOfItems);
    for (const Item& item : items()) {
        if (chosen != QLatin1String(item.name))
            continue;
        ui.theListOfEvents->addItems(item.events);
        item.open(forms());
    }
    ui.theListOfItems->setEnabled(false);
}

// The events open once the dialog has handed its tag over.
void JSConsole::theCode_Change() {
    ui.theListOfEvents->setEnabled(!ui.theCode.text().isEmpty());
}

// Each event takes one handler: its row goes once the handler is written. With no
// event chosen the handler has no name and removing its row fails.
void JSConsole::listToBeDone_Click() {
    const jsevents::Action* action = jsevents::actionNamed(rowText(ui.listToBeDone));
    if (!action)
        return;
    QStringList answers;
    for (const QString& question : action->prompts) {
        answers << services().prompts->inputBox(question);
        if (answers.size() == 1 && answers.front().isEmpty())
            return;
    }
    const QString event = rowText(ui.theListOfEvents);
    ui.theCode.setSelText(jsevents::handler(*action, event, answers));
    if (event.isEmpty())
        throw RuntimeFailure::invalidProcedureCall();
    delete ui.theListOfEvents->takeItem(ui.theListOfEvents->currentRow());
    ui.theListOfEvents->setCurrentRow(-1);
    ui.theListOfEvents->clearSelection();
}

// Whatever stands in the text goes to the page, typed or not.
void JSConsole::btnok_Click() {
    ui.theCode.setSelText(QStringLiteral(">"));
    forms().get<Tessara>().VisualInsert(ui.theCode.text());
    unload();
}

void JSConsole::btnIns_Click() {
    ui.theCode.setText(QString());
    ui.theListOfItems->setEnabled(true);
}

void JSConsole::btnCancel_Click() {
    unload();
}

void JSConsole::takeFragment(QString fragment, ConsoleLanding landing) {
    int searchFrom = 1;
    switch (landing) {
    case ConsoleLanding::OpenTag:
        if (fragment.endsWith(QLatin1Char('>')))
            fragment.back() = QLatin1Char(' ');
        ui.theCode.setSelText(fragment);
        return;
    case ConsoleLanding::AtSelection:
        ui.theCode.setSelText(fragment);
        break;
    case ConsoleLanding::WholeText:
        ui.theCode.setText(fragment);
        break;
    case ConsoleLanding::AtSelectionForm:
        ui.theCode.setSelText(fragment);
        searchFrom = 8;
        break;
    }
    // The `>` is selected, so the attributes the console adds go in before it. A
    // text without one gives a start of -1, which the text box refuses.
    ui.theCode.setSelStart(vb::InStr(searchFrom, ui.theCode.text(), QStringLiteral(">")) - 1);
    ui.theCode.setSelLength(1);
}

// The console is the visual view's alone.
void Tessara::mnuJavaScriptCons() {
    forms().get<JSConsole>().show();
}

} // namespace zt
