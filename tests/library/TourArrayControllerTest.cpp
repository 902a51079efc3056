#include "library/TourArrayController.h"

#include "library/MyDocument.h"
#include "tests/support/Tours.h"

#include <QCollator>
#include <QCoreApplication>

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace ridelog {
namespace {

using Number = std::optional<double>;

// The names are written out once more: users' files have them.
const std::pair<const char16_t*, std::function<Number(const OdoTour&)>> numbers[] = {
    {u"date", [](const auto& tour) { return tour.date().toMSecsSinceEpoch(); }},
    {u"totalDistance", &OdoTour::totalDistance},
    {u"duration", &OdoTour::duration},
    {u"elevationGain", &OdoTour::elevationGain},
    {u"averageSpeed", &OdoTour::avgSpeed},
    {u"maxSpeed", &OdoTour::maxSpeed},
    {u"averagePulse", &OdoTour::avgPulse},
    {u"maxPulse", &OdoTour::maxPulse},
    {u"averageMovingSpeed", &OdoTour::avgMovingSpeed},
    {u"climbingCount", &OdoTour::climbingCount},
    {u"maxClimbingPercentage", &OdoTour::maxClimbingPercentage},
    {u"avgPower", &OdoTour::avgPower},
    {u"averageTemp", &OdoTour::avgTemperature},
};

/// Negative, 0 or positive, as the plainest of comparisons has it.
int compared(const OdoTour& left, const OdoTour& right, const QString& key)
{
    for (const auto& [name, value] : numbers) {
        if (key == name)
            return value(left) < value(right) ? -1 : int{value(right) < value(left)};
    }
    QCollator collator{QLocale(QLocale::English)};
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    if (key == u"title")
        return collator.compare(left.title(), right.title());
    return collator.compare(left.type().value_or(QString()), right.type().value_or(QString()));
}

struct Random {
    std::mt19937 engine;

    int below(std::size_t count) { return static_cast<int>(engine() % count); }

    /// Titles that all languages sort alike.
    QString title()
    {
        const char16_t* const titles[] = {u"", u"Tour 9", u"tour 10", u"Tour 10", u"apfel", u"Apfel"};
        return QString::fromUtf16(titles[below(std::size(titles))]);
    }

    /// Often like another one in some value, now and then without it.
    std::shared_ptr<OdoTour> tour()
    {
        std::optional<TourDictionary> dictionary = startValues(100 * below(3), 60 + below(3));
        dictionary->month = 1 + below(12);
        if (below(4) == 0)
            dictionary->type.reset();
        for (int sample = below(5); sample > 0; --sample)
            dictionary->tourData.push_back(
                {.altitudeChange = static_cast<std::int16_t>(below(30)), .distance = 10 * below(30)});
        if (below(8) == 0)
            dictionary.reset();
        auto made = OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31));
        made->setTitle(title());
        made->setRemoved(below(4) == 0);
        return made;
    }

    Tours tours(int count)
    {
        Tours made(static_cast<std::size_t>(count));
        std::ranges::generate(made, [this] { return tour(); });
        return made;
    }

    SortDescriptors descriptors()
    {
        SortDescriptors made{{.key = QStringLiteral("title")}, {.key = QStringLiteral("type")}};
        for (const auto& [key, value] : numbers)
            made.push_back({.key = QString::fromUtf16(key), .ascending = below(2) == 0});
        std::ranges::shuffle(made, engine);
        made.resize(static_cast<std::size_t>(below(4)));
        return made;
    }
};

class TourArrayControllerTest : public testing::Test {
protected:
    TourArrayControllerTest()
    {
        const auto* list = &controller;
        QObject::connect(list, &TourArrayController::aboutToRearrange,
                         [this] { EXPECT_EQ(controller.arrangedObjects(), shown); });
        QObject::connect(list, &TourArrayController::rearranged, [this](const Tours& previous) {
            EXPECT_EQ(previous, shown);
            EXPECT_NE(controller.arrangedObjects(), shown);
            shown = controller.arrangedObjects();
            ++rearrangements;
        });
        QObject::connect(list, &TourArrayController::tourChanged, [this](int row) { edited.push_back(row); });
        QObject::connect(list, &TourArrayController::selectionChanged, [this] { ++selections; });
    }

    MyDocument document;
    UndoManager& undo = document.undoManager();
    TourArrayController controller{document};
    Tours shown; ///< as the notifications tell it
    int rearrangements = 0;
    int selections = 0;
    std::vector<int> edited;
};

TEST_F(TourArrayControllerTest, TheListIsSortedAsAPlainComparisonDoesIt)
{
    EXPECT_TRUE(controller.filterDeletedItems());
    for (std::uint32_t seed = 1; seed <= 200; ++seed) {
        Random random{std::mt19937(seed)};
        document.setToursArray(random.tours(random.below(40)));
        const auto descriptors = random.descriptors();
        controller.setFilterDeletedItems(random.below(2) == 0);
        controller.setSortDescriptors(descriptors);

        auto expected = document.toursArray();
        if (controller.filterDeletedItems())
            std::erase_if(expected, [](const auto& tour) { return tour->removed(); });
        std::ranges::stable_sort(expected, [&](const auto& left, const auto& right) {
            for (const auto& [key, ascending] : descriptors) {
                if (const int order = compared(*left, *right, key))
                    return ascending ? order < 0 : order > 0;
            }
            return false;
        });
        const auto text = textOfSortDescriptors(descriptors);
        EXPECT_EQ(shown, expected) << "seed " << seed << ": " << qPrintable(text);
        EXPECT_EQ(sortDescriptorsFromText(text), descriptors.empty() ? newestFirst() : descriptors);
    }
}

TEST_F(TourArrayControllerTest, OfADamagedOrderWhatCanBeReadCounts)
{
    const std::pair<const char16_t*, const char*> damaged[] = {
        {u"", "date:desc"},
        {u"date", "date:desc"},
        {u"title:up,:asc,:,,weight:desc,Title:asc,title:asc:desc", "date:desc"},
        {u" title : asc , colour:asc, date:desc\n", "title:asc,date:desc"},
        {u"title:desc,date,title:asc", "title:desc"},
    };
    for (const auto& [text, expected] : damaged)
        EXPECT_EQ(textOfSortDescriptors(sortDescriptorsFromText(text)).toStdString(), expected);
}

TEST_F(TourArrayControllerTest, WhateverHappensTheListFollowsAndTheSelectionStaysWithItsTours)
{
    Random random{std::mt19937(1)};
    const auto any = [&] { return document.toursArray()[static_cast<std::size_t>(random.below(20))]; };
    const std::function<void()> operations[] = {
        [&] {
            controller.selectRows({random.below(20), random.below(20), random.below(20), -1, 1000});
        },
        [&] { controller.rearrangeObjects(); },
        [&] { controller.setSortDescriptors(random.descriptors()); },
        [&] { controller.deleteSelectedTours(); },
        [&] { document.addNewToursFromArray(random.tours(3)); },
        [&] { document.deleteTour(any()); },
        [&] { document.undeleteTour(any()); },
        [&] { any()->setTitle(random.title()); },
        [&] { undo.undo(); },
        [&] { undo.redo(); },
        [&] {
            controller.setFilterDeletedItems(!controller.filterDeletedItems());
            controller.rearrangeObjects();
        },
    };
    document.setToursArray(random.tours(20));
    for (int step = 0; step < 2000; ++step) {
        auto before = controller.selection();
        selections = 0;
        const auto operation = static_cast<std::size_t>(random.below(std::size(operations)));
        operations[operation]();
        QCoreApplication::processEvents();

        EXPECT_EQ(shown, controller.arrangedObjects());
        EXPECT_TRUE(std::ranges::is_permutation(shown, controller.arrangeObjects(document.toursArray())));
        for (int row = 0; row < std::ssize(shown); ++row)
            EXPECT_EQ(controller.rowOf(*shown[static_cast<std::size_t>(row)]), row);
        EXPECT_TRUE(std::ranges::is_sorted(controller.selectedRows(), std::less_equal()));
        const bool same = std::ranges::is_permutation(before, controller.selection());
        EXPECT_EQ(selections, same ? 0 : 1) << "step " << step << " operation " << operation;
        std::erase_if(before, [this](const auto& tour) { return controller.rowOf(*tour) < 0; });
        EXPECT_TRUE(operation == 0 || std::ranges::is_permutation(before, controller.selection()));
    }
}

TEST_F(TourArrayControllerTest, ThousandsOfToursCostOneRearrangement)
{
    controller.setSortDescriptors({{.key = TourKey::title}});
    document.addNewToursFromArray(Random{std::mt19937(1)}.tours(4000));
    EXPECT_EQ(rearrangements, 1);
    controller.showNewestFirst();
    EXPECT_EQ(textOfSortDescriptors(controller.sortDescriptors()).toStdString(), "date:desc");
    undo.closeGroup();

    const auto all = shown;
    controller.setSelection({all.begin(), all.end() - 1});
    rearrangements = 0;
    controller.deleteSelectedTours();
    EXPECT_EQ(shown, Tours{all.back()}) << "at once";
    QCoreApplication::processEvents();
    EXPECT_TRUE(undo.undo());
    EXPECT_EQ(undo.redoActionName(), QStringLiteral("tour removed"));
    QCoreApplication::processEvents();
    EXPECT_EQ(shown, all);
    EXPECT_TRUE(undo.redo());
    QCoreApplication::processEvents();
    EXPECT_EQ(shown, Tours{all.back()});
    EXPECT_EQ(rearrangements, 3);

    controller.setFilterDeletedItems(false);
    EXPECT_EQ(rearrangements, 3) << "not by itself";
    controller.rearrangeObjects();
    controller.setSelection(shown);
    controller.undeleteSelectedTours();
    EXPECT_TRUE(std::ranges::none_of(shown, [](const auto& tour) { return tour->removed(); }));
}

TEST_F(TourArrayControllerTest, AnEditedTitleKeepsItsRowUntilTheListIsRearranged)
{
    document.setToursArray({tourThrough({1}), tourThrough({2}), tourThrough({3})});
    controller.setSortDescriptors({{.key = TourKey::title}});
    controller.selectRow(0);
    controller.setSelection({shown[0]});
    const auto tour = shown[0];
    EXPECT_EQ(controller.selectedTour(), tour);
    tour->setTitle(QStringLiteral("zebra"));
    QCoreApplication::processEvents();
    EXPECT_EQ(shown[0], tour);
    controller.rearrangeObjects();
    EXPECT_EQ(shown[2], tour);
    undo.undo();
    EXPECT_EQ(edited, (std::vector{0, 2}));
    EXPECT_EQ(controller.selectedRows(), std::vector{2});
    EXPECT_EQ(selections, 1);

    // A stored row may lie behind the list by now.
    controller.selectRow(1000);
    EXPECT_EQ(controller.selectedRows(), std::vector{2});
    controller.selectRows({-1, 3});
    EXPECT_EQ(controller.selectedTour(), nullptr);
    document.setToursArray({});
    controller.selectRow(0);
    EXPECT_TRUE(controller.selectedRows().empty());
    tour->setTitle(QStringLiteral("gone"));
    EXPECT_EQ(edited.size(), 2);
}

} // namespace
} // namespace ridelog
