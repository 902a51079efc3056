#include "tests/ui/TourWindow.h"
#include "ui/ChosenLanguage.h"
#include "ui/ColourButton.h"
#include "ui/PreferencesController.h"

#include <QAccessible>
#include <QColorDialog>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>

#include <chrono>
#include <tuple>

namespace ridelog {
namespace {

/// The panel, used with mouse and keys.
class Preferences : public TourWindow {
protected:
    /// Asks for it by key.
    PreferencesController& openFrom(QWidget& place)
    {
        inFront(place);
        QTest::keyClick(&place, Qt::Key_Comma, Qt::ControlModifier);
        inFront(panel());
        return panel();
    }
    PreferencesController& open()
    {
        if (!windows)
            start();
        return openFrom(window());
    }
    PreferencesController& panel() { return *windows->preferences(); }
    QWidget& page() { return *panel().pages().currentWidget(); }
    /// The control of a key, on the page that is shown then.
    template <typename Control = QWidget>
    Control& control(const QString& key)
    {
        auto& pages = panel().pages();
        for (int number = 0; number < pages.count(); ++number) {
            if (auto* found = pages.widget(number)->findChild<Control*>(key)) {
                pages.setCurrentIndex(number);
                return *found;
            }
        }
        throw std::runtime_error("no control for " + key.toStdString());
    }
    template <typename Field>
    static void type(Field& field, const char* text)
    {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, QString::fromLatin1(text));
        QTest::keyClick(&field, Qt::Key_Return);
    }
    /// Presses the button and chooses the colour.
    void chooseColour(ColourButton& button, const QColor& colour)
    {
        question.clear();
        whenAsked<QColorDialog>([colour](QColorDialog& dialog) {
            dialog.setCurrentColor(colour);
            dialog.accept();
        });
        click(button);
        EXPECT_TRUE(eventually([&] { return question == button.accessibleName(); }));
    }
    void press(const char* text)
    {
        for (auto* button : page().findChildren<QAbstractButton*>()) {
            if (button->text().remove(u'&') == QString::fromLatin1(text))
                return click(*button);
        }
        ADD_FAILURE() << "no button " << text;
    }

    const QStringList colours{DefaultsKeys::colorAltitude, DefaultsKeys::colorSpeed,
                              DefaultsKeys::colorPulse,    DefaultsKeys::pulseBelowColor,
                              DefaultsKeys::pulseInColor,  DefaultsKeys::pulseAboveColor};
    const QStringList boxes{DefaultsKeys::saveRawData,
                            DefaultsKeys::automaticCheck,
                            DefaultsKeys::speed2ndAxis,
                            DefaultsKeys::useManualRange,
                            DefaultsKeys::pulseDrawPulseRange,
                            DefaultsKeys::pulseUseGradient,
                            DefaultsKeys::useAlternateTransferSettings};
    const QStringList keys = boxes + colours +
                             QStringList{DefaultsKeys::useMiles,
                                         DefaultsKeys::language,
                                         DefaultsKeys::minRange,
                                         DefaultsKeys::maxRange,
                                         DefaultsKeys::pulseMinPulse,
                                         DefaultsKeys::pulseMaxPulse,
                                         DefaultsKeys::checkForUpdateAfterDays};
};

TEST_F(Preferences, BoxesAndListsFollowTheirKeysAndTheKeysThem)
{
    open();
    for (const auto& key : boxes) {
        auto& box = control<QCheckBox>(key);
        const bool before = defaults->boolForKey(key);
        EXPECT_EQ(box.isChecked(), before) << qPrintable(key);
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
        EXPECT_EQ(defaults->boolForKey(key), !before) << qPrintable(key);
        defaults->setValue(key, before);
        EXPECT_EQ(box.isChecked(), before) << qPrintable(key);
    }
    auto& units = control<QComboBox>(DefaultsKeys::useMiles);
    QTest::keyClick(&units, Qt::Key_Down);
    EXPECT_TRUE(action(QStringLiteral("Miles, mph and Feet"))->isChecked());
    Application::trigger("Kilometres, km/h and Metres");
    EXPECT_EQ(units.currentIndex(), 0);

    auto& language = control<QComboBox>(DefaultsKeys::language);
    QTest::keyClick(&language, Qt::Key_Down);
    EXPECT_EQ(defaults->textForKey(DefaultsKeys::language), QStringLiteral("en"));
    QTest::keyClick(&language, Qt::Key_Up);
    EXPECT_FALSE(defaults->contains(DefaultsKeys::language));
    EXPECT_EQ(language.currentText(), QStringLiteral("System language"));
    defaults->setValue(DefaultsKeys::language, QStringLiteral("en"));
    EXPECT_EQ(language.currentText(), QStringLiteral("English"));
}

TEST_F(Preferences, NumbersFollowTheirKeysAndTheKeysThem)
{
    open();
    defaults->setValue(DefaultsKeys::automaticCheck, true);
    const std::tuple<QString, const char*, int> typed[] = {{DefaultsKeys::checkForUpdateAfterDays, "14", 14},
                                                           {DefaultsKeys::checkForUpdateAfterDays, "1", 1},
                                                           {DefaultsKeys::pulseMinPulse, "95", 95},
                                                           {DefaultsKeys::pulseMaxPulse, "188", 188}};
    for (const auto& [key, text, number] : typed) {
        auto& field = control<QSpinBox>(key);
        type(field, text);
        EXPECT_EQ(defaults->integerForKey(key), number);
        QTest::keyClick(&field, Qt::Key_Up);
        EXPECT_EQ(defaults->integerForKey(key), number + 1);
        defaults->setValue(key, number + 5);
        EXPECT_EQ(field.value(), number + 5);
    }
    auto& least = control<QSpinBox>(DefaultsKeys::pulseMinPulse);
    auto& most = control<QSpinBox>(DefaultsKeys::pulseMaxPulse);
    defaults->setValue(DefaultsKeys::pulseMinPulse, 130);
    defaults->setValue(DefaultsKeys::pulseMaxPulse, 160);
    type(least, "200");
    EXPECT_EQ(most.value(), 230) << "one limit pushes the other, and the range stays as wide";
    type(most, "120");
    EXPECT_EQ(defaults->integerForKey(DefaultsKeys::pulseMinPulse), 90);
    type(least, "240");
    EXPECT_EQ(most.value(), 250);
    EXPECT_EQ(least.maximum(), 240) << "there is room for the other one";
    type(most, "180");

    EXPECT_TRUE(panel().isVisible()) << "Return is the field's";
    most.selectAll();
    QTest::keyClicks(&most, QStringLiteral("180"));
    QTest::keyClick(&most, Qt::Key_Escape);
    EXPECT_TRUE(panel().isHidden());
    EXPECT_EQ(defaults->integerForKey(DefaultsKeys::pulseMaxPulse), 180) << "what was typed counts";
    open();
    most.selectAll();
    QTest::keyClicks(&most, QStringLiteral("175"));
    end();
    start();
    EXPECT_EQ(defaults->integerForKey(DefaultsKeys::pulseMaxPulse), 175) << "also at the end of the program";
}

TEST_F(Preferences, WhatIsChosenForChartsShowsInAnOpenOneAtOnce)
{
    auto& shown = TourWindow::open(tourThrough({500, 600, 550}));
    const auto& settings = shown.chart().settings();
    open();
    for (const auto& key : colours) {
        auto& button = control<ColourButton>(key);
        chooseColour(button, QColor(255, 128, 0, 204));
        EXPECT_EQ(defaults->colourForKey(key), (ColourComponents{1, 128 / 255.0, 0, 0.8})) << qPrintable(key);
        EXPECT_EQ(button.accessibleDescription(), QStringLiteral("#ccff8000"));
    }
    EXPECT_EQ(settings.speedColor, (ColourComponents{1, 128 / 255.0, 0, 0.8}));
    defaults->setValue(DefaultsKeys::colorAltitude, ColourComponents{1, 0, 0, 1});
    EXPECT_EQ(control<ColourButton>(DefaultsKeys::colorAltitude).colour(), QColor(Qt::red));

    defaults->setValue(DefaultsKeys::useMiles, true);
    defaults->setValue(DefaultsKeys::useManualRange, true);
    type(control<QLineEdit>(DefaultsKeys::maxRange), "3280.8399");
    EXPECT_NEAR(static_cast<double>(settings.maxRange), 1000, 0.001);
    EXPECT_EQ(shown.maxRangeTextField().text(), QStringLiteral("3280.8"));
    type(control<QLineEdit>(DefaultsKeys::minRange), "deep");
    EXPECT_TRUE(panel().message().startsWith(QStringLiteral("“deep” is no altitude. ")));
    EXPECT_TRUE(shown.message().isEmpty());
    defaults->setValue(DefaultsKeys::speed2ndAxis, false);
    EXPECT_FALSE(panel().message().isEmpty()) << "a click elsewhere does not take it away";
    type(control<QLineEdit>(DefaultsKeys::minRange), "0");
    EXPECT_TRUE(panel().message().isEmpty());
    for (const auto* away : {"page", "panel", "reset"}) {
        type(control<QLineEdit>(DefaultsKeys::minRange), "deep");
        EXPECT_FALSE(panel().message().isEmpty());
        if (away == QByteArray("page"))
            panel().pages().setCurrentIndex(0);
        else if (away == QByteArray("reset"))
            press("Reset Colours");
        else
            QTest::keyClick(&panel(), Qt::Key_Escape);
        EXPECT_TRUE(panel().message().isEmpty()) << away;
        open();
    }
    // What one limit makes of the other can be typed as well.
    defaults->setValue(DefaultsKeys::useMiles, false);
    type(control<QLineEdit>(DefaultsKeys::minRange), "9900");
    EXPECT_EQ(control<QLineEdit>(DefaultsKeys::maxRange).text(), QStringLiteral("10000"));
    type(control<QLineEdit>(DefaultsKeys::minRange), "9901");
    EXPECT_EQ(panel().message(),
              QStringLiteral("“9901” is out of range. It has to be between -1000 and 9900 m."));
    type(control<QLineEdit>(DefaultsKeys::maxRange), "-900");
    EXPECT_EQ(control<QLineEdit>(DefaultsKeys::minRange).text(), QStringLiteral("-1000"));

    press("Reset Colours");
    for (const auto& key : colours)
        EXPECT_FALSE(defaults->isStored(key)) << qPrintable(key);
    EXPECT_EQ(settings.altitudeColor, (ColourComponents{0, 0, 1, 1}));
    EXPECT_TRUE(settings.useManualRange) << "it is no colour";
}

TEST_F(Preferences, APageGoesBackToItsDefaultsAndNoOther)
{
    open();
    for (const auto& key : keys)
        defaults->setValue(key, QStringLiteral("1"));
    defaults->setValue(DefaultsKeys::drawerOpen, false);
    auto left = keys;
    for (int number = 0; number < panel().pages().count(); ++number) {
        panel().pages().setCurrentIndex(number);
        press("Reset to Defaults");
        left.removeIf([this](const QString& key) {
            const bool isOfPage = page().findChild<QWidget*>(key) != nullptr;
            EXPECT_EQ(defaults->isStored(key), !isOfPage) << qPrintable(key);
            return isOfPage;
        });
    }
    EXPECT_TRUE(left.isEmpty()) << qPrintable(left.join(u' ')) << " have no control";
    EXPECT_TRUE(defaults->isStored(DefaultsKeys::drawerOpen));
    EXPECT_EQ(control<QSpinBox>(DefaultsKeys::pulseMaxPulse).value(), 170);
}

TEST_F(Preferences, AResetGivesUpWhatIsBeingTyped)
{
    open();
    auto& least = control<QSpinBox>(DefaultsKeys::pulseMinPulse);
    least.setFocus();
    least.selectAll();
    QTest::keyClicks(&least, QStringLiteral("99"));
    QTest::keyClick(&panel(), Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(eventually([&] { return !least.hasFocus(); })) << "a button takes a moment to be pressed";
    EXPECT_EQ(least.value(), 130);
    QTest::keyClick(&panel(), Qt::Key_Escape);
    EXPECT_FALSE(defaults->isStored(DefaultsKeys::pulseMinPulse));
}

TEST_F(Preferences, ChoicesThatCannotBeStoredAreToldOf)
{
    open();
    EXPECT_EQ(panel().message(), QString());
    QFile::remove(path("settings"));
    ASSERT_TRUE(QDir().mkpath(path("settings/in the way")));
    defaults->setValue(DefaultsKeys::speed2ndAxis, false);
    EXPECT_FALSE(defaults->synchronize());
    EXPECT_EQ(panel().message(),
              QStringLiteral("What you choose lasts until ridelog ends: %1 cannot be written.")
                  .arg(path("settings")));
    panel().pages().setCurrentIndex(1);
    EXPECT_FALSE(panel().message().isEmpty());
    ASSERT_TRUE(QDir(path("settings")).removeRecursively());
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_EQ(panel().message(), QString());
}

TEST_F(Preferences, TheChosenLanguageIsThatOfTheWindows)
{
    start();
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    for (const auto* code : {"", "xx", "en"}) {
        defaults->setValue(DefaultsKeys::language, QString::fromLatin1(code));
        speakChosenLanguage(*defaults);
        EXPECT_EQ(QLocale().language(), code == QByteArray("en") ? QLocale::English : QLocale::German);
    }
    QLocale::setDefault(QLocale::c());
}

TEST_F(Preferences, DaysAreCountedInTheirOwnForm)
{
    open();
    defaults->setValue(DefaultsKeys::automaticCheck, true);
    auto& days = control<QSpinBox>(DefaultsKeys::checkForUpdateAfterDays);
    EXPECT_EQ(days.text(), QStringLiteral("7 days"));
    type(days, "1");
    EXPECT_EQ(days.text(), QStringLiteral("1 day"));
    defaults->setValue(DefaultsKeys::checkForUpdateAfterDays, 2);
    EXPECT_EQ(days.text(), QStringLiteral("2 days"));
}

TEST_F(Preferences, NonsenseInTheSettingsIsSurvivedAndStays)
{
    write("settings", "[General]\npulse_maxPulse=99999\npulse_minPulse=fast\ncolor_speed=green\n"
                      "checkForUpdateAfterDays=-3\nlanguage=xx, yy\nuseMiles=perhaps\nminRange=1e300\n"
                      "PreferencesPanel=here\n");
    open();
    EXPECT_EQ(control<QSpinBox>(DefaultsKeys::pulseMaxPulse).value(), 250);
    EXPECT_EQ(control<QSpinBox>(DefaultsKeys::pulseMinPulse).value(), 130);
    EXPECT_EQ(control<ColourButton>(DefaultsKeys::colorSpeed).colour(), QColor(Qt::green));
    EXPECT_EQ(control<QSpinBox>(DefaultsKeys::checkForUpdateAfterDays).value(), 1);
    EXPECT_EQ(control<QComboBox>(DefaultsKeys::language).currentIndex(), 0);
    EXPECT_EQ(control<QComboBox>(DefaultsKeys::useMiles).currentIndex(), 0);
    EXPECT_EQ(control<QLineEdit>(DefaultsKeys::minRange).text(), QStringLiteral("0"));
    panel().close();
    EXPECT_EQ(defaults->integerForKey(DefaultsKeys::pulseMaxPulse), 99999) << "nobody has changed it";
}

TEST_F(Preferences, AreOnePanelThatKnowsItsPlaceAndDoesNotKeepTheApplicationAlive)
{
    auto& tour = TourWindow::open(tourThrough({500, 600, 550}));
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    auto& first = open();
    // As the rider does: nobody has told the window itself.
    first.windowHandle()->setPosition(120, 90);
    QCoreApplication::processEvents();
    const auto place = first.geometry();
    EXPECT_EQ(place.topLeft(), QPoint(120, 90));
    QTest::keyClick(&first, Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(first.isHidden());
    EXPECT_EQ(&openFrom(tour), &first);
    EXPECT_TRUE(first.isVisible());
    EXPECT_EQ(first.geometry(), place);
    tour.close();

    QTimer tooLate;
    tooLate.callOnTimeout([] { QCoreApplication::exit(1); });
    tooLate.start(std::chrono::seconds(20));
    QTimer::singleShot(0, &window(), &QWidget::close);
    EXPECT_EQ(QApplication::exec(), 0);
    end();
    start();
    EXPECT_EQ(open().geometry(), place);
}

TEST_F(Preferences, EachControlHasALetterOfItsOwnANameAndATabStop)
{
    auto& pages = open().pages();
    for (int number = 0; number < pages.count(); ++number) {
        pages.setCurrentIndex(number);
        QStringList letters;
        QSet<const QObject*> reached;
        const auto reach = [&](const QString& text, const QObject* target) {
            const auto letter = QKeySequence::mnemonic(text).toString();
            EXPECT_FALSE(letters.contains(letter)) << qPrintable(text);
            if (!letter.isEmpty()) {
                letters << letter;
                reached << target;
            }
        };
        for (int tab = 0; tab < pages.count(); ++tab)
            reach(pages.tabText(tab), &pages);
        for (auto* one : panel().findChildren<QWidget*>()) {
            const auto* label = qobject_cast<QLabel*>(one);
            const auto* button = qobject_cast<QAbstractButton*>(one);
            if (label && label->isVisible() && label->buddy())
                reach(label->text(), label->buddy());
            else if (button && button->isVisible())
                reach(button->text(), button);
        }
        for (auto* one : page().findChildren<QWidget*>()) {
            if (!keys.contains(one->objectName()))
                continue;
            const auto name = one->objectName().toStdString();
            EXPECT_TRUE(one->focusPolicy() & Qt::TabFocus) << name;
            EXPECT_FALSE(QAccessible::queryAccessibleInterface(one)->text(QAccessible::Name).isEmpty())
                << name;
            // From the box one comes to the limits of the altitude.
            EXPECT_TRUE(reached.contains(one) || qobject_cast<QLineEdit*>(one)) << name;
        }
    }
}

} // namespace
} // namespace ridelog
