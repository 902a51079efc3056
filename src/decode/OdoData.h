#pragma once

#include "decode/DumpDigits.h"
#include "decode/DumpLayout.h"
#include "model/OdoTour.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <utility>
#include <vector>

namespace ridelog {

/// The decoder of one raw dump: general data and tours. It decodes in its initializer and only serves the
/// results afterwards. A dump that cannot be decoded leaves both results empty, and `refusal` says why.
class OdoData {
    Q_DECLARE_TR_FUNCTIONS(OdoData)

public:
    /// Larger files are refused before they are read: they are something else.
    static constexpr qint64 largestFile = 1024 * 1024;

    /// Decodes the bytes. `now`, with its time zone, tells the year of the tours (see OdoTour).
    static OdoData initWithData(const QByteArray& data, const QDateTime& now = CalendarDate::now());
    /// Decodes a file; one that cannot be read is decoded as no bytes.
    static OdoData initWithFile(const QString& path, const QDateTime& now = CalendarDate::now());

    const QByteArray& data() const { return _data; }
    const GeneralData& generalDataDict() const { return _generalDataDict; }
    /// In the order in which the tours' ends stand in memory, a tour stitched across the ring's end last.
    const Tours& toursArray() const& { return _toursArray; }
    Tours toursArray() && { return std::move(_toursArray); }

    /// Why the bytes are not a raw dump, in words for people; empty if they are one.
    const QString& refusal() const { return _refusal; }

    // Digit conversions, most significant character first. A character that is no digit is not an error: it
    // counts by its code as the rules have it.

    static constexpr std::int16_t HexToInt2(char p1, char p2)
    {
        using DumpDigits::hexAtPlace;
        return static_cast<std::int16_t>(hexAtPlace(1, p1) + hexAtPlace(0, p2));
    }
    static constexpr std::int16_t HexToInt(char p1, char p2, char p3, char p4)
    {
        using DumpDigits::hexAtPlace;
        return static_cast<std::int16_t>(hexAtPlace(3, p1) + hexAtPlace(2, p2) + hexAtPlace(1, p3) +
                                         hexAtPlace(0, p4));
    }
    static constexpr std::int16_t DecToInt2(char p1, char p2)
    {
        using DumpDigits::decimalDigit;
        return static_cast<std::int16_t>(10 * decimalDigit(p1) + decimalDigit(p2));
    }
    static constexpr std::int16_t DecToInt(char p1, char p2, char p3, char p4)
    {
        return static_cast<std::int16_t>(100 * DecToInt2(p1, p2) + DecToInt2(p3, p4));
    }

    /// Sets pulse change, altitude change and distance of `rect` from a sample word.
    static void WordToDataRect(std::int16_t word, DataRect& rect);

private:
    /// What the record scan knows between two records. It belongs to one parse.
    struct Scan {
        bool flTourRunning = false;         ///< a tour start was accepted, its end not yet met
        bool flIntermediateTour = false;    ///< samples belong to the tour that the ring's end cut off
        bool flAlreadyIntermediate = false; ///< that tour's end was met
        int localCounter = 0;               ///< tour start records met
        TourDictionary tour;                ///< the current tour
        std::vector<DataRect> intermediateSamples;
    };

    /// What all samples of a record have in common.
    struct RecordHead {
        std::int16_t temperature;
        std::int16_t endMarker;
        std::int16_t cadence;
        std::uint8_t lastData;
    };

    OdoData(QByteArray data, QDateTime now);

    bool loadDataFromFile(const QString& path);
    bool parseData();
    bool checkForValidSignature() const;
    void parseGeneralData();
    void addNSNumberUsingInt(std::int32_t number, QStringView withName);

    void scanRecords();
    void handleAAEntry();
    void handleBBEntry();
    void handleCCEntry();
    void handleDDEntry();
    void addRecords(std::uint32_t record, std::uint32_t count, RecordHead head);
    std::uint32_t dataRecordsFrom(std::uint32_t record) const;
    void finishTour();
    void finishWrappedTour();
    bool recordAreaIsText() const;

    // Fields at an offset of the dump.
    const char* at(std::uint32_t offset) const { return _data.constData() + offset; }
    std::int16_t hexByte(std::uint32_t offset) const { return HexToInt2(at(offset)[0], at(offset)[1]); }
    std::int16_t hexWord(std::uint32_t offset) const
    {
        const auto* group = at(offset);
        return HexToInt(group[0], group[1], group[2], group[3]);
    }
    std::int16_t decimalPair(std::uint32_t offset) const { return DecToInt2(at(offset)[0], at(offset)[1]); }
    std::int16_t decimalQuad(std::uint32_t offset) const
    {
        const auto* group = at(offset);
        return DecToInt(group[0], group[1], group[2], group[3]);
    }
    bool typeCodeIs(const char (&code)[3], std::uint32_t offset) const
    {
        return at(offset)[0] == code[0] && at(offset)[1] == code[1];
    }

    QByteArray _data;
    QDateTime _now;
    GeneralData _generalDataDict;
    Tours _toursArray;
    QString _refusal;
    std::uint32_t _bufPos = 0; ///< position in the dump; in a record's handler, that of its type code
    Scan _scan;
};

} // namespace ridelog
