// Draws an icon into pictures of the sizes that desktops ask for, when ridelog is built.

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

/// Up to this size, in pixels, the drawing for small sizes is used.
constexpr int largestSmall = 24;

bool complain(const QString& file, const char* reason)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(file), reason);
    return false;
}

bool draw(const QString& drawing, int size, const QString& folder, const QString& name)
{
    const auto picture = QStringLiteral("%1/%2x%2/%3").arg(folder).arg(size).arg(name);
    QDir().mkpath(QFileInfo(picture).path());
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid())
        return complain(drawing, "not a drawing");
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    return image.save(picture, "PNG") || complain(picture, "cannot be written");
}

} // namespace

/// MakeIcons DRAWING SMALL-DRAWING FOLDER NAME SIZE...: writes FOLDER/SIZExSIZE/NAME for each size.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const auto words = QCoreApplication::arguments();
    if (words.size() < 6) {
        std::fprintf(stderr, "MakeIcons DRAWING SMALL-DRAWING FOLDER NAME SIZE...\n");
        return 2;
    }
    for (const auto& word : words.mid(5)) {
        const int size = word.toInt();
        if (size <= 0 || !draw(words[size <= largestSmall ? 2 : 1], size, words[3], words[4]))
            return 1;
    }
    return 0;
}
