#include "ui/EmptyDocumentView.h"

#include "ui/Icons.h"

#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ridelog {

EmptyDocumentView::EmptyDocumentView(QWidget* parent) : QWidget(parent)
{
    auto* heading = new QLabel(tr("No tours yet"));
    auto font = heading->font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * 1.6);
    heading->setFont(font);
    heading->setAlignment(Qt::AlignCenter);
    auto* text = new QLabel(tr("Take them from your cycle computer, or import a raw dump of its memory. You "
                               "can also drop a dump on this window."));
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    text->setFixedWidth(420);

    auto* connectDevice = new QPushButton(actionIcon(QStringLiteral("device")), tr("Connect De&vice"));
    auto* importDump = new QPushButton(actionIcon(QStringLiteral("import")), tr("&Import Dump…"));
    connect(connectDevice, &QPushButton::clicked, this, &EmptyDocumentView::connectDeviceRequested);
    connect(importDump, &QPushButton::clicked, this, &EmptyDocumentView::importDumpRequested);
    // Its height follows from its own width, not from that of the window.
    auto* middle = new QHBoxLayout;
    middle->addStretch();
    middle->addWidget(text);
    middle->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(connectDevice);
    buttons->addWidget(importDump);
    buttons->addStretch();

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    layout->addStretch();
    layout->addWidget(heading);
    layout->addLayout(middle);
    layout->addLayout(buttons);
    layout->addStretch();
}

} // namespace ridelog
