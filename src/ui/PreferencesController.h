#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QTabWidget;
QT_END_NAMESPACE

namespace ridelog {

class Defaults;

/// The preferences panel: what the rider can choose for all windows, on pages. Each choice counts at once.
/// Closing the panel hides it.
class PreferencesController : public QDialog {
    Q_OBJECT

public:
    /// `defaults` have to outlive it.
    explicit PreferencesController(Defaults& defaults);
    ~PreferencesController() override;

    QTabWidget& pages() { return *_pages; }
    /// What is wrong with what was typed last, in words.
    QString message() const;

private:
    void showMessage(const QString& message);
    QWidget* makeGeneralPage();
    QWidget* makeChartPage();
    QWidget* makePulsePage();
    QWidget* makeDevicePage();

    Defaults& _defaults;
    QTabWidget* _pages;
    QLabel* _message;
};

} // namespace ridelog
