#pragma once

#include "decode/OdoData.h"
#include "exchange/TourExport.h"
#include "platform/Defaults.h"
#include "tests/support/Dates.h"
#include "tests/support/Samples.h"
#include "tests/support/Tours.h"

#include <QDir>

#include <gtest/gtest.h>

namespace ridelog {

/// The tours of one of the real dumps.
inline Tours realTours(const QString& name)
{
    const auto dump =
        OdoData::initWithFile(samplePath(QStringLiteral("dumps/") + name), berlin(2007, 12, 31));
    EXPECT_TRUE(dump.refusal().isEmpty()) << qPrintable(dump.refusal());
    return dump.toursArray();
}

/// All tours of all real dumps.
inline Tours realTours()
{
    Tours tours;
    const QDir dumps(samplePath(QStringLiteral("dumps")));
    for (const auto& name : dumps.entryList({QStringLiteral("*.odo")}, QDir::Files, QDir::Name)) {
        const auto ofDump = realTours(name);
        tours.insert(tours.end(), ofDump.begin(), ofDump.end());
    }
    EXPECT_EQ(tours.size(), 55U);
    return tours;
}

/// What a format writes of these tours.
inline QByteArray exported(const ExportFormat& format, const Tours& tours, const ExportSource& source = {})
{
    QByteArray bytes;
    std::size_t done = 0;
    format.write(
        tours, source,
        ExportSink([&bytes](QByteArrayView more) { bytes += more; }, [&done] { return ++done > 0; }));
    EXPECT_EQ(done, tours.size());
    return bytes;
}

} // namespace ridelog
