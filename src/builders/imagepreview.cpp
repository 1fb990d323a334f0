#include "imagepreview.h"

#include "platform/textcontrol.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPixmap>
#include <QUrl>

namespace zt {

namespace {

// Larger files are not read for a preview: a picture of that size is no thumbnail.
constexpr qint64 kLargestFile = 32 * 1024 * 1024;

} // namespace

QString previewFile(const QString& source, const QString& documentPath) {
    if (source.isEmpty())
        return {};
    if (source.startsWith(QLatin1String("file:"), Qt::CaseInsensitive))
        return QUrl(source).toLocalFile();
    if (source.contains(QLatin1String("://")))
        return {};
    if (QDir::isAbsolutePath(source))
        return QDir::cleanPath(source);
    if (documentPath.isEmpty())
        return {};
    return QDir::cleanPath(QFileInfo(documentPath).absoluteDir().filePath(source));
}

ImagePreview::ImagePreview(TextControl& source, std::function<QString()> documentPath, QSize size,
                           QWidget* parent)
    : QLabel(parent), m_source(source), m_documentPath(std::move(documentPath)) {
    setFixedSize(size);
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Sunken);
    m_source.addChangeHandler([this] { showSource(); });
    showSource();
}

bool ImagePreview::showsPicture() const {
    return !pixmap().isNull();
}

void ImagePreview::showSource() {
    clear();
    const QString path = previewFile(m_source.text(), m_documentPath());
    // Only an ordinary file: a pipe or a device named here must not hold the dialog.
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isFile() || file.size() > kLargestFile)
        return;
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize full = reader.size();
    const QSize room = contentsRect().size();
    if (full.isValid() && (full.width() > room.width() || full.height() > room.height()))
        reader.setScaledSize(full.scaled(room, Qt::KeepAspectRatio));
    const QImage image = reader.read();
    if (!image.isNull())
        setPixmap(QPixmap::fromImage(image));
}

} // namespace zt
