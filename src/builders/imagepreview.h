#pragma once

#include <QLabel>

namespace zt {

class TextControl;

// The local file an image source names, for a preview: an absolute path or a file:
// address as it is, a relative source in the folder of the document (documentPath,
// empty for a page never saved, when there is no folder to look in). Empty when
// there is nothing local to show.
QString previewFile(const QString& source, const QString& documentPath);

// A small box that shows the picture a source field names, scaled to fit, and
// follows every change of the field. A source that cannot be read shows an empty
// box; nothing is ever said about it.
class ImagePreview : public QLabel {
public:
    // documentPath is asked on every change, so a page saved meanwhile counts.
    ImagePreview(TextControl& source, std::function<QString()> documentPath, QSize size,
                 QWidget* parent);

    // Whether a picture is shown now.
    bool showsPicture() const;

private:
    void showSource();

    TextControl& m_source;
    std::function<QString()> m_documentPath;
};

} // namespace zt
