// The designer's .mfd files.
#include "designfile.h"
#include "morvane.h"

namespace zt {

namespace {

const QString kFilter = QStringLiteral("Morvane Form Files (*.mfd)|*.mfd");

} // namespace

void morvane::mnuOpen() {
    openDesign(*ui.Result, ui.ComDlg, kFilter);
}

void morvane::mnuSave() {
    saveDesign(*ui.Result, ui.ComDlg, kFilter);
}

} // namespace zt
