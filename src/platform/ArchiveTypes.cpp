#include "platform/ArchiveTypes.h"

#include <algorithm>

namespace ridelog {
namespace {

using Item = ArchiveTypes::Item;
using Kind = ArchiveTypes::Kind;

constexpr qsizetype longestTypeString = 4096;
constexpr int deepestBrackets = 16;
constexpr qsizetype mostDigits = 10;
constexpr int mostEmptyArrays = 4;

Kind kindOf(char code)
{
    switch (code) {
    case 'c':
    case 'C':
    case 'B':
        return Kind::byte;
    case 's':
    case 'S':
    case 'i':
    case 'I':
    case 'l':
    case 'L':
    case 'q':
    case 'Q':
        return Kind::integer;
    case 'f':
    case 'd':
        return Kind::real;
    case '@':
        return Kind::object;
    case '#':
        return Kind::classRef;
    case '*':
        return Kind::cString;
    case '+':
        return Kind::text;
    case '%':
    case ':':
        return Kind::atom;
    default:
        return Kind::none;
    }
}

class Parser {
public:
    explicit Parser(QByteArrayView text) : _rest(text) {}

    std::optional<std::vector<Item>> all()
    {
        while (!_rest.isEmpty()) {
            if (!type(0))
                return std::nullopt;
        }
        return std::move(_items);
    }

private:
    char take()
    {
        if (_rest.isEmpty())
            return 0;
        const char code = _rest.front();
        _rest = _rest.sliced(1);
        return code;
    }

    bool type(int depth)
    {
        const char code = take();
        switch (code) {
        case '!': // stands for nothing in the stream
            return true;
        case '[':
            return depth < deepestBrackets && array(depth);
        case '{':
            return depth < deepestBrackets && structure(depth);
        default:
            _items.push_back({.kind = kindOf(code), .code = code});
            return _items.back().kind != Kind::none;
        }
    }

    bool array(int depth)
    {
        const auto count = number();
        if (!count || (*count == 0 && (depth > 0 || ++_emptyArrays > mostEmptyArrays)))
            return false;
        const auto first = _items.size();
        _items.push_back({.kind = Kind::array, .code = '[', .count = *count});
        if (!type(depth + 1) || take() != ']' || _items.size() == first + 1)
            return false;
        if (const char element = _items[first + 1].code; element == 'c' || element == 'C') {
            _items[first].kind = Kind::block;
            _items.pop_back();
        }
        close(first);
        return true;
    }

    bool structure(int depth)
    {
        const auto first = _items.size();
        _items.push_back({.kind = Kind::structure, .code = '{'});
        // The name goes up to the first '='; a structure without a name has none.
        const auto brace = std::find_if(_rest.begin(), _rest.end(), [](char code) {
            return code == '{' || code == '}' || code == '[' || code == '=';
        });
        if (brace != _rest.end() && *brace == '=')
            _rest = _rest.sliced(brace - _rest.begin() + 1);
        while (!_rest.startsWith('}')) {
            if (_rest.isEmpty() || !type(depth + 1))
                return false;
        }
        take();
        if (_items.size() == first + 1)
            _items.pop_back();
        else
            close(first);
        return true;
    }

    void close(std::size_t first) { _items[first].span = static_cast<std::uint32_t>(_items.size() - first); }

    std::optional<std::uint32_t> number()
    {
        const auto end = std::find_if(_rest.begin(), _rest.end(), [](char c) { return c < '0' || c > '9'; });
        const auto digits = _rest.first(end - _rest.begin());
        _rest = _rest.sliced(digits.size());
        bool fits = false;
        const auto value = digits.size() <= mostDigits ? digits.toUInt(&fits) : 0;
        return fits ? std::optional(value) : std::nullopt;
    }

    QByteArrayView _rest;
    std::vector<Item> _items;
    int _emptyArrays = 0;
};

} // namespace

std::optional<ArchiveTypes> ArchiveTypes::parse(QByteArrayView text)
{
    if (text.isEmpty() || text.size() > longestTypeString)
        return std::nullopt;
    auto items = Parser(text).all();
    if (!items)
        return std::nullopt;
    ArchiveTypes types;
    types._items = std::move(*items);
    return types;
}

} // namespace ridelog
