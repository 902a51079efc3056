#pragma once

#include "decode/OdoData.h"
#include "library/MyDocument.h"
#include "simulator/RideGenerator.h"
#include "tests/support/Tours.h"

#include <gtest/gtest.h>
#include <string>

namespace ridelog {

inline QByteArray stored(const MyDocument& document)
{
    return document.dataRepresentationOfType(MyDocument::typeName);
}

/// Loads the bytes and answers why they were refused, or nothing.
inline std::string refusalOf(MyDocument& document, const QByteArray& bytes)
{
    const bool loaded = document.loadDataRepresentation(bytes, MyDocument::typeName, berlin(2007, 12, 31));
    EXPECT_EQ(loaded, document.refusal().isEmpty());
    return document.refusal().toStdString();
}

/// The tours of a year of made-up rides.
inline Tours rides(std::uint32_t seed, int count)
{
    const auto dump = RideGenerator{.seed = seed, .tours = count}.dump();
    return OdoData::initWithData(dump, berlin(2007, 12, 31, 23)).toursArray();
}

/// A small document with one tour in which there is something of everything.
inline void fill(MyDocument& document)
{
    const auto tour = tourThrough({500, 504, 502});
    tour->setTitle(QStringLiteral("Ο γύρος 🚴"));
    StyledText description(QStringLiteral("windy on the pass"));
    description.setUnderline(0, 5, true);
    description.setLink(13, 4, QStringLiteral("https://example.org/pass"));
    tour->setTourDescription(description);
    tour->setRemoved(true);
    document.setToursArray({tour});
    document.setGeneralData({{QStringLiteral("Weight"), 75}, {QStringLiteral("Wheelsize"), 2080}});
}

} // namespace ridelog
