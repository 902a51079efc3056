#pragma once

#include <QByteArray>

#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <vector>

namespace ridelog {

/// A message as it stands in a FIT file: the raw numbers of its fields.
struct FitMessage {
    int number = 0;
    std::map<int, std::int64_t> fields;

    bool has(int field) const { return fields.contains(field); }
    std::int64_t at(int field) const { return has(field) ? fields.at(field) : -999'999; }
};

/// The CRC of FIT files, bit by bit.
inline unsigned slowFitChecksum(const QByteArray& bytes)
{
    unsigned remainder = 0;
    for (const char byte : bytes) {
        remainder ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            remainder = (remainder & 1) != 0 ? (remainder >> 1) ^ 0xA001 : remainder >> 1;
    }
    return remainder;
}

/// Reads a FIT file by the protocol alone, without knowing a message, and complains of all that is not in
/// order. Signed fields are those whose base type is.
class FitReader {
public:
    explicit FitReader(const QByteArray& bytes) : _bytes(bytes)
    {
        readHeader();
        if (::testing::Test::HasFailure())
            return;
        const auto end = bytes.size() - 2;
        while (_position < end && !::testing::Test::HasFailure())
            readMessage();
        EXPECT_EQ(_position, end);
        EXPECT_EQ(take(2), slowFitChecksum(bytes.first(end)));
    }

    const std::vector<FitMessage>& messages() const { return _messages; }
    std::vector<FitMessage> messages(int number) const
    {
        std::vector<FitMessage> found;
        for (const auto& message : _messages) {
            if (message.number == number)
                found.push_back(message);
        }
        return found;
    }
    /// The only message of its kind.
    FitMessage only(int number) const
    {
        const auto found = messages(number);
        EXPECT_EQ(found.size(), 1U) << "message " << number;
        return found.empty() ? FitMessage{} : found.front();
    }

private:
    struct Field {
        int number;
        int size;
        int type;
    };
    struct Definition {
        int message = -1;
        std::vector<Field> fields;
    };

    std::int64_t take(int size)
    {
        std::int64_t number = 0;
        for (int i = 0; i < size; ++i)
            number |= std::int64_t{static_cast<unsigned char>(_bytes.at(_position++))} << (8 * i);
        return number;
    }

    void readHeader()
    {
        ASSERT_GE(_bytes.size(), 16);
        EXPECT_EQ(take(1), 14);
        EXPECT_LT(take(1), 0x30); // the protocol's first or second version
        take(2);
        EXPECT_EQ(take(4), _bytes.size() - 16);
        EXPECT_EQ(_bytes.sliced(8, 4), ".FIT");
        _position = 12;
        EXPECT_EQ(take(2), slowFitChecksum(_bytes.first(12)));
    }

    void readMessage()
    {
        const auto head = static_cast<int>(take(1));
        ASSERT_EQ(head & ~0x4F, 0) << "neither a definition nor data";
        auto& definition = _definitions[head & 0x0F];
        if ((head & 0x40) != 0)
            readDefinition(definition);
        else
            readData(definition);
    }

    void readDefinition(Definition& definition)
    {
        EXPECT_EQ(take(2), 0) << "big-endian";
        definition = {.message = static_cast<int>(take(2)), .fields = {}};
        for (auto count = take(1); count > 0; --count) {
            const auto number = static_cast<int>(take(1));
            const auto size = static_cast<int>(take(1));
            definition.fields.push_back({number, size, static_cast<int>(take(1))});
        }
    }

    void readData(const Definition& definition)
    {
        ASSERT_NE(definition.message, -1) << "data without a definition";
        FitMessage message{.number = definition.message, .fields = {}};
        for (const auto& field : definition.fields) {
            ASSERT_LE(_position + field.size, _bytes.size() - 2);
            const bool isSigned = field.type == 0x01 || field.type == 0x83 || field.type == 0x85;
            auto number = take(field.size);
            if (isSigned && number >> (8 * field.size - 1) != 0)
                number -= std::int64_t{1} << (8 * field.size);
            EXPECT_TRUE(message.fields.emplace(field.number, number).second) << "twice: " << field.number;
        }
        _messages.push_back(message);
    }

    QByteArray _bytes;
    qsizetype _position = 0;
    std::map<int, Definition> _definitions;
    std::vector<FitMessage> _messages;
};

} // namespace ridelog
