#pragma once

#include "platform/form.h"

#include <memory>

class QComboBox;
class QLabel;

namespace zt {

class PageEngine;

// A browsing window: the HTML Tutor's lessons with their chooser, or, with the
// chooser hidden, any page the program sends the user to.
class frmMoreTemp : public Form {
public:
    explicit frmMoreTemp(FormRegistry& forms);
    ~frmMoreTemp() override;

    void load() override;

    // The plain browser: the page alone, under caption, at url.
    void browse(const QString& caption, const QString& url);

    struct Ui {
        std::unique_ptr<PageEngine> theWeb;
        QComboBox* cmbLessons = nullptr;
        QLabel* lblLesson = nullptr;
    } ui;
};

} // namespace zt
