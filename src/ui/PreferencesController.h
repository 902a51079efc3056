#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QTabWidget;
QT_END_NAMESPACE

namespace ridelog {

class Defaults;
class PreferencesPage;

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

protected:
    void hideEvent(QHideEvent* event) override;

private:
    /// `section` of the manual tells of it.
    void addPage(PreferencesPage* page, const QString& name, const QString& section);
    void showMessage(const QString& message);
    PreferencesPage* makeGeneralPage();
    PreferencesPage* makeChartPage();
    PreferencesPage* makePulsePage();
    PreferencesPage* makeDevicePage();

    Defaults& _defaults;
    QTabWidget* _pages;
    QLabel* _message;
};

} // namespace ridelog
