#pragma once

#include "platform/statusbar.h"
#include "shell/document.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"
#include "support/testprogram.h"

#include <QFile>

namespace zt::test {

// The i-th question asked, as text|title|kind; empty when there was none.
inline QString question(const TestProgram& program, int i = 0) {
    if (i >= int(program.prompts.asked.size()))
        return {};
    const auto& q = program.prompts.asked[std::size_t(i)];
    return q.text + '|' + q.title + '|' + QString::number(q.style);
}

// The number of the one run-time failure; 0 for none, -1 for more than one.
inline int failure(const TestProgram& program) {
    const auto& all = program.failures;
    return all.empty() ? 0 : all.size() > 1 ? -1 : all[0].number();
}

// Both views of one document in a scenario's program, and short ways to reach the
// fields the file commands share.
struct Views {
    TestProgram program;
    Tessara& tessara = program.forms->get<Tessara>();
    Zelvo& zelvo = program.forms->get<Zelvo>();

    QString& tag() { return zelvo.Tag; }
    QString star() const { return zelvo.ui.star.text(); }
    TextControl& area() { return zelvo.ui.area; }
    PageEngine& txtComp() { return *tessara.ui.txtComp; }
    QString fileName() const { return zelvo.ui.comdlg.fileName; }
    QString mru(int key) const {
        return program.settings.getSetting(document::kApp, "MRUs", QString::number(key));
    }
    // A file in the scratch folder with text, returning its path.
    QString file(const QString& name, const QString& text) {
        const QString path = program.scratch(name);
        writeFile(path, text);
        return path;
    }
    // A titled document whose source and page both hold text.
    void load(const QString& path, const QString& text) {
        tag() = path;
        area().setText(text);
        txtComp().setDocumentHTML(text);
    }
    bool run(const std::function<void()>& command) { return program.event(command); }
    // The questions asked so far, as their texts.
    QStringList asked() const {
        QStringList texts;
        for (const auto& q : program.prompts.asked)
            texts << q.text;
        return texts;
    }
};

} // namespace zt::test
