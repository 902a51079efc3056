#pragma once

#include <QMap>
#include <QSize>
#include <QTextBrowser>

namespace ridelog {

/// Shows the pages of the manual in the colours of the desktop. No picture is wider than the page, and each
/// is made for the pixels of the screen.
class ManualPage : public QTextBrowser {
    Q_OBJECT

public:
    explicit ManualPage(QWidget* parent = nullptr);

    /// "preferences.html#chart"; the first page for an empty one. In the language of the windows, as far as
    /// there is one.
    void showSection(const QString& section);
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void takeColours();
    void fitPictures();
    QImage fitted(const QImage& picture) const;

    QMap<QUrl, QImage> _pictures; ///< of the page, as the manual has them
};

} // namespace ridelog
