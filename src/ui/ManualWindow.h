#pragma once

#include <QMainWindow>

QT_FORWARD_DECLARE_CLASS(QLineEdit)

namespace ridelog {

class Defaults;
class ManualPage;
class MessageLine;

/// The manual, one window for the application. Closing it hides it; its frame and the size of its letters are
/// kept.
class ManualWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `defaults` have to outlive it.
    explicit ManualWindow(Defaults& defaults);
    ~ManualWindow() override;

    /// Comes to the front with this section, "preferences.html#chart", or the first page. A panel that keeps
    /// all other windows from being used does not keep this one.
    void showSection(const QString& section);

    // What it is made of

    ManualPage& page() { return *_page; }
    QLineEdit& searchField() { return *_searchField; }
    /// What has just happened, in words.
    QString message() const;

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void makeActions();
    void makeToolBar();
    void zoom(int steps);
    void find();
    void findAgain(bool backward);
    void leave();

    Defaults& _defaults;
    ManualPage* _page;
    QLineEdit* _searchField = nullptr;
    MessageLine* _message = nullptr;
    int _zoom = 0; ///< points that letters are larger than usual
};

} // namespace ridelog
