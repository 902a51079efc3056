// Dumps made of real recordings, against the figures that stand beside them.

#include "decode/OdoData.h"
#include "tests/support/Dates.h"
#include "tests/support/Samples.h"

#include <QDir>
#include <QFile>
#include <QHash>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

QString fixed(double value, int digits)
{
    return QString::number(value, 'f', digits);
}

/// A tour as a row of the table: dump, number, date, type, samples, km, gain, climbs, speeds, pulses, power.
QString rowOf(const QString& dump, int number, const OdoTour& tour)
{
    const QStringList cells{dump,
                            QString::number(number),
                            tour.description(),
                            tour.type().value_or(QString()),
                            QString::number(tour.tourData().size()),
                            fixed(tour.totalDistance(), 2),
                            QString::number(tour.elevationGain()),
                            QString::number(tour.climbingCount()),
                            fixed(tour.maxSpeed(), 1),
                            fixed(tour.avgPulse(), 1),
                            fixed(tour.maxPulse(), 0),
                            fixed(tour.avgPower(), 1)};
    return QStringLiteral("| %1 |").arg(cells.join(QStringLiteral(" | ")));
}

TEST(RealDumps, GiveTheFiguresOfTheirTable)
{
    SKIP_WITHOUT_SAMPLES();
    QStringList expected;
    QFile table(samplePath(QStringLiteral("dumps/README.md")));
    ASSERT_TRUE(table.open(QIODevice::ReadOnly));
    while (!table.atEnd()) {
        const auto line = QString::fromUtf8(table.readLine()).trimmed();
        if (line.contains(QStringLiteral(".odo | ")))
            expected.append(line);
    }
    ASSERT_GE(expected.size(), 50);

    QStringList found;
    const QDir dumps(samplePath(QStringLiteral("dumps")));
    for (const auto& name : dumps.entryList({QStringLiteral("*.odo")}, QDir::Files, QDir::Name)) {
        const auto decoded = OdoData::initWithFile(dumps.filePath(name), berlin(2007, 12, 31));
        EXPECT_TRUE(decoded.refusal().isEmpty()) << qPrintable(name);
        int number = 0;
        for (const auto& tour : decoded.toursArray())
            found.append(rowOf(name, ++number, *tour));
    }
    expected.sort();
    found.sort();
    ASSERT_EQ(found.size(), expected.size());
    for (qsizetype i = 0; i < found.size(); ++i)
        EXPECT_EQ(found[i].toStdString(), expected[i].toStdString());
}

} // namespace
} // namespace ridelog
