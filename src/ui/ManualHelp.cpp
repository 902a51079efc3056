#include "ui/ManualHelp.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWidget>

namespace ridelog {
namespace {

constexpr const char* sectionProperty = "manualSection";

bool isManualKey(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

} // namespace

void setManualSection(QWidget& widget, const QString& section)
{
    widget.setProperty(sectionProperty, section);
}

/// That of the nearest widget around it that has one: a panel lies in the window that it lies over.
QString manualSection(const QWidget& widget)
{
    for (const auto* around = &widget; around; around = around->parentWidget()) {
        if (const auto section = around->property(sectionProperty); section.isValid())
            return section.toString();
    }
    return {};
}

void askForManual(QWidget& widget)
{
    QEvent request(QEvent::HelpRequest);
    QCoreApplication::sendEvent(&widget, &request);
}

ManualRequests::ManualRequests(QObject* parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ManualRequests::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::HelpRequest && !isManualKey(*event))
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    // The key comes to the window of the desktop first, which does not know where in it the keys go.
    if (!widget)
        return false;
    Q_EMIT asked(manualSection(*widget));
    return true;
}

} // namespace ridelog
