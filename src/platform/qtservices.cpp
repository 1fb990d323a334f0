#include "qtservices.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QUrl>

namespace zt {

namespace {

QString titleOrDefault(const QString& title) {
    return title.isEmpty() ? QCoreApplication::applicationName() : title;
}

QWidget* activeWindow() {
    return QApplication::activeWindow();
}

// A box of the program comes in front of every window of the program, the
// top-most dialogs included, and takes the input until it is answered.
void inFront(QWidget& box) {
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.setWindowModality(Qt::ApplicationModal);
}

// A question with Yes and No and no Cancel must be answered: Escape and the
// frame's close button would otherwise pick No for the user.
class MessageBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;
    bool mustAnswer = false;

protected:
    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        raise();
        activateWindow();
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (mustAnswer && event->matches(QKeySequence::Cancel))
            return;
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (mustAnswer) {
            event->ignore();
            return;
        }
        QMessageBox::closeEvent(event);
    }
};

QMessageBox::Icon iconOf(int style) {
    switch (style & 0x70) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbQuestion:
        return QMessageBox::Question;
    case vbExclamation:
        return QMessageBox::Warning;
    case vbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

quint32 toBgr(const QColor& c) {
    return quint32(c.red()) | quint32(c.green()) << 8 | quint32(c.blue()) << 16;
}

QColor fromBgr(quint32 v) {
    return QColor(int(v & 0xFF), int(v >> 8 & 0xFF), int(v >> 16 & 0xFF));
}

} // namespace

QStringList qtNameFilters(const QString& filter) {
    // Pairs of description and pattern; Qt wants "Description (pattern)", and the
    // description of the program's filters already ends in the pattern.
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList out;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString pattern =
            QString(parts.at(i + 1)).replace(QLatin1Char(';'), QLatin1Char(' '));
        out << (parts.at(i).contains(QLatin1Char('('))
                    ? parts.at(i)
                    : parts.at(i) + QStringLiteral(" (%1)").arg(pattern));
    }
    return out;
}

int QtPrompts::msgBox(const QString& text, int style, const QString& title) {
    return showMessageBox(text, style, titleOrDefault(title));
}

int showMessageBox(const QString& text, int style, const QString& title) {
    MessageBox box(iconOf(style), title, text, QMessageBox::NoButton, activeWindow());
    inFront(box);
    const int buttons = style & 0x7;
    box.mustAnswer = buttons == vbYesNo;
    QList<QMessageBox::StandardButton> order;
    switch (buttons) {
    case vbOKCancel:
        order = {QMessageBox::Ok, QMessageBox::Cancel};
        break;
    case vbYesNoCancel:
        order = {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
        break;
    case vbYesNo:
        order = {QMessageBox::Yes, QMessageBox::No};
        break;
    default:
        order = {QMessageBox::Ok};
        break;
    }
    for (auto b : order)
        box.addButton(b);
    const int defaultIndex = (style & vbDefaultButton2) ? 1 : 0;
    if (defaultIndex < order.size())
        box.setDefaultButton(order.at(defaultIndex));
    switch (box.exec()) {
    case QMessageBox::Yes:
        return vbYes;
    case QMessageBox::No:
        return vbNo;
    case QMessageBox::Cancel:
        return vbCancel;
    default:
        return order.contains(QMessageBox::Cancel) ? vbCancel : vbOK;
    }
}

QString QtPrompts::inputBox(const QString& prompt, const QString& title,
                            const QString& defaultText) {
    QInputDialog dialog(activeWindow());
    inFront(dialog);
    dialog.setWindowTitle(titleOrDefault(title));
    dialog.setLabelText(prompt);
    dialog.setTextValue(defaultText);
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

std::optional<QString> QtPickers::openFile(const FileDialogRequest& request) {
    QFileDialog dialog(activeWindow(),
                       request.title.isEmpty() ? QObject::tr("Open") : request.title);
    inFront(dialog);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(qtNameFilters(request.filter));
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

std::optional<QString> QtPickers::saveFile(const FileDialogRequest& request) {
    QFileDialog dialog(activeWindow(),
                       request.title.isEmpty() ? QObject::tr("Save As") : request.title);
    inFront(dialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(qtNameFilters(request.filter));
    QString ext = request.defaultExt;
    ext.remove(QStringLiteral("*.")).remove(QLatin1Char('.'));
    if (!ext.isEmpty() && !ext.contains(QLatin1Char('*')))
        dialog.setDefaultSuffix(ext);
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

std::optional<quint32> QtPickers::color(quint32 initial) {
    QColorDialog dialog(fromBgr(initial), activeWindow());
    inFront(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return toBgr(dialog.selectedColor());
}

bool QtPickers::printer() {
    QPrinter printer;
    QPrintDialog dialog(&printer, activeWindow());
    inFront(dialog);
    return dialog.exec() == QDialog::Accepted;
}

QString QtClipboard::text() const {
    return QGuiApplication::clipboard()->text();
}

void QtClipboard::setText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

QString QtClipboard::html() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasHtml() ? data->html() : QString();
}

void QtClipboard::setHtml(const QString& html, const QString& plainText) {
    auto* data = new QMimeData;
    data->setHtml(html);
    data->setText(plainText);
    QGuiApplication::clipboard()->setMimeData(data);
}

void QtClipboard::clear() {
    QGuiApplication::clipboard()->clear();
}

bool QtLauncher::start(const QString& program, const QStringList& arguments) {
    return QProcess::startDetached(program, arguments);
}

bool QtLauncher::open(const QString& target) {
    const QUrl url = QFileInfo::exists(target) ? QUrl::fromLocalFile(target) : QUrl(target);
    return QDesktopServices::openUrl(url);
}

QStringList QtDesktop::screenFonts() const {
    return QFontDatabase::families();
}

void QtDesktop::beep() {
    QApplication::beep();
}

} // namespace zt
