// How the description of an update becomes the record of an application.

#include "update/RecordKeys.h"
#include "update/UpdateLog.h"
#include "update/XMLUpdater.h"

#include <QStringConverter>
#include <QXmlStreamReader>

#include <utility>

namespace ridelog {
namespace {

const QString applicationElement = QStringLiteral("application");
const QString descriptionElement = QStringLiteral("description");
const QString languageAttribute = QStringLiteral("language");

bool isEntryElement(const QString& elementName)
{
    return elementName == RecordKeys::name || elementName == RecordKeys::version ||
           elementName == RecordKeys::url;
}

/// Why reading the document could take far more time or memory than its size tells, if it could. Entities and
/// default attributes multiply, and the reader compares each attribute of an element with all the others.
/// The reader does all that before it hands out what it has read, so the bytes are searched.
std::optional<QString> whyCostly(QByteArray bytes)
{
    constexpr qsizetype mostAttributes = 10'000; // take the reader a quarter of a second in one element
    // What follows stands there as ASCII, or with zeros between in the wider encodings.
    bytes.removeIf([](char byte) { return byte == '\0'; });
    if (bytes.contains("<!ENTITY") || bytes.contains("<!ATTLIST"))
        return XMLUpdater::tr("it declares entities or attributes of its own");
    if (bytes.count('=') > mostAttributes)
        return XMLUpdater::tr("it has too many attributes");
    return std::nullopt;
}

/// Others could hide from that search what the reader finds.
bool isPlainEncoding(const QString& name)
{
    return name.isEmpty() || QStringConverter::encodingForName(name.toLatin1().constData());
}

/// Why the document is not read any further than its first line, if it is not.
std::optional<QString> whyRefused(const QByteArray& xml, const QString& encoding)
{
    return isPlainEncoding(encoding) ? whyCostly(xml) : XMLUpdater::tr("its encoding is not UTF-8 or UTF-16");
}

using Dict = QMap<QString, QString>;

Dict dictOf(const QXmlStreamAttributes& attributes)
{
    Dict dict;
    for (const auto& attribute : attributes)
        dict.insert(attribute.qualifiedName().toString(), attribute.value().toString());
    return dict;
}

/// As dictionaries stand in the log. Only so much of a large one: applications that are nested end one after
/// the other, each with the whole record.
QString textOf(const Dict& dict)
{
    constexpr qsizetype mostCharacters = 4096;
    QString text;
    for (const auto& [key, value] : dict.asKeyValueRange()) {
        text += QStringLiteral("    %1 = %2;\n").arg(key.left(mostCharacters), value.left(mostCharacters));
        if (text.size() > mostCharacters)
            return QStringLiteral("{\n%1…").arg(text.left(mostCharacters));
    }
    return QStringLiteral("{\n%1}").arg(text);
}

/// What is wrong with the document, for people.
QString reasonOf(const QXmlStreamReader& reader)
{
    if (reader.error() == QXmlStreamReader::CustomError)
        return reader.errorString();
    auto description = reader.errorString();
    if (description.endsWith(u'.'))
        description.chop(1);
    return XMLUpdater::tr("not well-formed XML, line %1: %2").arg(reader.lineNumber()).arg(description);
}

} // namespace

std::optional<QString> XMLUpdater::_parse(const QByteArray& xml)
{
    _applicationDict.clear();
    _currentStringValue.reset();
    _language.clear();
    _inElement = false;
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartDocument:
            qCDebug(lcUpdate, "[parserDidStartDocument]");
            if (const auto reason = whyRefused(xml, reader.documentEncoding().toString()))
                reader.raiseError(*reason);
            break;
        case QXmlStreamReader::StartElement:
            _didStartElement(reader.qualifiedName().toString(), reader.attributes());
            break;
        case QXmlStreamReader::Characters:
            _foundCharacters(reader.text().toString());
            break;
        case QXmlStreamReader::EndElement:
            _didEndElement(reader.qualifiedName().toString());
            break;
        case QXmlStreamReader::EntityReference:
            reader.raiseError(tr("the entity %1 is not declared").arg(reader.name()));
            break;
        case QXmlStreamReader::EndDocument:
            qCDebug(lcUpdate, "[parserDidEndDocument]");
            break;
        default:
            break;
        }
    }
    if (!reader.hasError())
        return std::nullopt;
    _parseErrorOccurred(reader.error(), reader.errorString(), reader.lineNumber(), reader.columnNumber());
    return reasonOf(reader);
}

void XMLUpdater::_didStartElement(const QString& elementName, const QXmlStreamAttributes& attributes)
{
    qCDebug(lcUpdate, "elementName: %s", qUtf8Printable(elementName));
    qCDebug(lcUpdate, "attributeDict: %s", qUtf8Printable(textOf(dictOf(attributes))));
    if (elementName == applicationElement) {
        _applicationDict.clear();
    } else if (isEntryElement(elementName)) {
        _inElement = true;
    } else if (elementName == descriptionElement) {
        _language = attributes.value(languageAttribute).toString();
        _inElement = true;
    }
}

void XMLUpdater::_foundCharacters(const QString& characters)
{
    qCDebug(lcUpdate, "[parser foundCharacters] %s", qUtf8Printable(characters));
    if (!_inElement || characters.isEmpty())
        return;
    if (!_currentStringValue)
        _currentStringValue.emplace();
    *_currentStringValue += QString(characters).remove(u'\t');
}

/// An element without text stores nothing, nor does a description without a language. Text that stands behind
/// the end of a nested element is not collected.
void XMLUpdater::_didEndElement(const QString& elementName)
{
    qCDebug(lcUpdate, "elementName: %s", qUtf8Printable(elementName));
    _inElement = false;
    if (elementName == applicationElement) {
        qCDebug(lcUpdate, "_applicationDict:");
        qCDebug(lcUpdate, "%s", qUtf8Printable(textOf(_applicationDict)));
        return;
    }
    const bool isDescription = elementName == descriptionElement;
    if (!isDescription && !isEntryElement(elementName))
        return;
    const auto key = isDescription ? std::exchange(_language, {}) : elementName;
    const auto text = std::exchange(_currentStringValue, std::nullopt);
    if (text && !key.isEmpty())
        _applicationDict.insert(key, *text);
}

void XMLUpdater::_parseErrorOccurred(int code, const QString& description, qint64 line, qint64 column) const
{
    qCWarning(lcUpdate, "[parseErrorOccurred] %s", qUtf8Printable(description));
    qCWarning(lcUpdate, "Error %i, Description: %s, Line: %i, Column: %i", code, qUtf8Printable(description),
              static_cast<int>(line), static_cast<int>(column));
}

} // namespace ridelog
