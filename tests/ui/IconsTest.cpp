#include "ui/Icons.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

/// The colour of the most covered pixel; none of an empty picture is covered.
QColor inkOf(const QImage& image)
{
    QColor ink(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (const auto here = image.pixelColor(x, y); here.alpha() > ink.alpha())
                ink = here;
        }
    }
    return ink;
}

TEST(Icons, FollowThePaletteAndTheScreen)
{
    const auto before = QGuiApplication::palette();
    auto dark = before;
    dark.setColor(QPalette::Active, QPalette::ButtonText, Qt::yellow);
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::red);
    const auto names = QDir(QStringLiteral(":/icons/actions")).entryList();
    ASSERT_GE(names.size(), 5);
    for (const auto& name : names) {
        const auto icon = actionIcon(name.chopped(4));
        EXPECT_EQ(inkOf(icon.pixmap(64).toImage()), before.color(QPalette::Active, QPalette::ButtonText))
            << qPrintable(name);
        QGuiApplication::setPalette(dark);
        EXPECT_EQ(inkOf(icon.pixmap(64).toImage()), QColor(Qt::yellow));
        EXPECT_EQ(inkOf(icon.pixmap(64, QIcon::Disabled).toImage()), QColor(Qt::red));
        EXPECT_EQ(icon.pixmap(QSize(16, 16), 2.0).size(), QSize(32, 32));
        QGuiApplication::setPalette(before);
    }
}

TEST(Icons, TheApplicationHasOneWithoutBeingInstalled)
{
    for (const int size : {16, 24, 32, 256})
        EXPECT_EQ(applicationIcon().pixmap(size).toImage().pixelColor(size / 2, size / 2).alpha(), 255)
            << size;
}

} // namespace
} // namespace ridelog
