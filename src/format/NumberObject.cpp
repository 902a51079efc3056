#include "format/NumberObject.h"

namespace ridelog {

std::optional<double> numberOf(const QVariant& object)
{
    switch (object.metaType().id()) {
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return object.toDouble();
    default:
        return {};
    }
}

} // namespace ridelog
