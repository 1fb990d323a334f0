#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

#include <memory>

class QListWidget;
class QPushButton;

namespace zt {

class FileListBox;
class PageEngine;

// The Template Manager: the pages of the templates folder by name, the chosen one
// shown in a preview that cannot be edited, and OK to start the document from it.
class templates : public Form {
public:
    explicit templates(FormRegistry& forms);
    ~templates() override;

    void load() override;

    // Lists the folder's templates by the names inside their file names.
    void fill();
    void listTemplates_Click();
    void OKButton_Click();
    void CancelButton_Click();

    struct Ui {
        FileListBox* FileTemp = nullptr;
        QListWidget* listTemplates = nullptr;
        std::unique_ptr<PageEngine> PrevTemplate;
        // Kept from the design; nothing reads it.
        TextControl getPath;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;
};

namespace templatefiles {

// Where in the program folder a template of that name is written ("Temp") and read
// ("temp"); the program folder matches either spelling to the one file there is.
QString writingPath(const QString& name);
QString readingPath(const QString& name);
// The name the list shows for a file: four characters cut in front and five behind
// for a name of more than nine, whatever the file is called.
QString listedName(const QString& fileName);

} // namespace templatefiles

// The Template Manager filled and shown, for the views' command and the assistant.
void showTemplates(FormRegistry& forms);

} // namespace zt
