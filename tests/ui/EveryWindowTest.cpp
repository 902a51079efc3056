// What holds for all windows and panels, in each language and theme.

#include "platform/Languages.h"
#include "tests/ui/TourWindow.h"
#include "tests/ui/WindowAudit.h"
#include "ui/ChosenLanguage.h"
#include "ui/Contrast.h"
#include "ui/ExportPanel.h"
#include "ui/PreferencesController.h"
#include "ui/SaveChartPanel.h"
#include "ui/StartWindow.h"
#include "ui/StatWindowController.h"

#include <QInputDialog>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QTabBar>
#include <QTabWidget>

#include <functional>

namespace ridelog {
namespace {

class EveryWindow : public TourWindow {
public:
    EveryWindow()
    {
        // The same measures wherever the tests run.
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }
    ~EveryWindow() override
    {
        end();
        speakLanguageOf(QLocale::c());
        QLocale::setDefault(QLocale::c());
        QApplication::setPalette(QPalette());
    }

protected:
    using Look = std::function<QStringList(QWidget&)>;

    /// Looks at every window and panel as riders come to see them.
    void lookAtAll(const Look& look)
    {
        start({path("gone.ridelog")});
        ASSERT_NE(windows->startWindow(), nullptr);
        inspect("start", *windows->startWindow(), look);
        end();

        start();
        inspect("empty document", window(), look);
        windows->takeFiles({dump()});
        EXPECT_TRUE(eventually([this] { return rows() == 5; }));
        inspect("document", window(), look);
        trigger(window(), Qt::CTRL | Qt::SHIFT | Qt::Key_D);
        EXPECT_TRUE(window().connectView().isVisible());
        inspect("document with device", window(), look);
        lookAtPanel<ExportPanel>("export", window(), Qt::CTRL | Qt::Key_E, look);
        lookAtPanel<QMessageBox>("about", window(), Qt::CTRL | Qt::Key_F1, look);
        lookAtPanel<QMessageBox>("unsaved changes", window(), QKeySequence::Close, look);

        auto& tour = openSelected();
        for (auto* drawer : tour.findChildren<QDockWidget*>())
            drawer->show();
        tour.resize(1100, 720);
        inspect("tour", tour, look);
        tour.close();

        auto& statistics = openStatistics();
        auto& tabs = statistics.tabView();
        for (int tab = 0; tab < tabs.count(); ++tab) {
            tabs.setCurrentIndex(tab);
            inspect("statistics", statistics, look);
        }

        trigger(window(), Qt::CTRL | Qt::Key_Comma);
        auto& panel = *windows->preferences();
        for (int page = 0; page < panel.pages().count(); ++page) {
            panel.pages().setCurrentIndex(page);
            inspect("preferences", panel, look);
        }
        end();
    }

private:
    static void trigger(const QWidget& of, const QKeySequence& keys)
    {
        for (auto* action : of.findChildren<QAction*>()) {
            if (action->shortcuts().contains(keys)) {
                action->trigger();
                QCoreApplication::processEvents();
                return;
            }
        }
        ADD_FAILURE() << "no action has the keys " << qPrintable(keys.toString());
    }
    StatWindowController& openStatistics()
    {
        trigger(window(), Qt::CTRL | Qt::SHIFT | Qt::Key_T);
        return *window().statWindow();
    }
    static void inspect(const char* name, QWidget& shown, const Look& look)
    {
        inFront(shown);
        QCoreApplication::processEvents();
        for (const auto& finding : look(shown))
            ADD_FAILURE() << name << ": " << qPrintable(finding);
    }
    template <typename Panel>
    void lookAtPanel(const char* name, QWidget& over, const QKeySequence& keys, const Look& look)
    {
        inFront(over);
        whenAsked<Panel>([&](Panel& panel) {
            inspect(name, panel, look);
            panel.reject();
        });
        trigger(over, keys);
        EXPECT_TRUE(eventually([this] { return answers.children().isEmpty(); })) << name;
    }
};

/// Names of files and ports, what tours are called, units, the languages' own names, the toolkit's buttons.
bool isData(const QString& text)
{
    static const QRegularExpression data(
        QStringLiteral("^(ridelog|Untitled.*|English|Deutsch|Français|Bike|OK|Save|Cancel|.*\\.(odo|ridelog|"
                       "tcx|fit|csv|json|html)|/.*|~.*|"
                       "[\\d.,:/– -]*(km|km/h|mph|mi|ft|m|W|kcal|bpm|°C|%|AM|PM)*|#[0-9a-f]+|.*\\d{4}.*)$"));
    return data.match(text.trimmed()).hasMatch();
}

TEST_F(EveryWindow, HasRoomForLongTextsAndNoOthers)
{
    const LongTexts longTexts;
    lookAtAll([](QWidget& shown) { return clippedTexts(shown) + untranslatedTexts(shown, isData); });
}

TEST_F(EveryWindow, IsUsedByKeyboardAndScreenReader)
{
    lookAtAll([](QWidget& shown) { return inaccessibleControls(shown); });
}

class EveryWindowIn : public EveryWindow, public testing::WithParamInterface<const char*> {};

TEST_P(EveryWindowIn, HasRoomAndKeysForItsTexts)
{
    QLocale::setDefault(QLocale(QString::fromLatin1(GetParam())));
    speakLanguageOf(QLocale());
    lookAtAll([](QWidget& shown) { return clippedTexts(shown) + ambiguousKeys(shown); });
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryWindowIn, testing::Values("en_GB", "de_DE", "fr_FR"),
                         [](const auto& one) { return std::string(one.param, 2); });

struct Theme {
    const char* name;
    QColor ground;
    QColor base;
    QColor text;
};

class EveryWindowOf : public EveryWindow, public testing::WithParamInterface<Theme> {};

TEST_P(EveryWindowOf, IsReadable)
{
    const auto& [name, ground, base, text] = GetParam();
    // All else is what the style has whatever the theme: links are blue, and so is what is selected.
    QApplication::setPalette(readable(QPalette(text, ground, ground.lighter(120), ground.darker(150),
                                               ground.darker(120), text, Qt::white, base, ground)));
    lookAtAll([](QWidget& shown) { return faintTexts(shown); });
}

INSTANTIATE_TEST_SUITE_P(Themes, EveryWindowOf,
                         testing::Values(Theme{"Light", QColor(239, 239, 239), Qt::white, Qt::black},
                                         Theme{"Dark", QColor(49, 54, 59), QColor(35, 38, 41),
                                               QColor(239, 240, 241)}),
                         [](const auto& one) { return one.param.name; });

} // namespace
} // namespace ridelog
