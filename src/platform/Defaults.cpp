#include "platform/Defaults.h"

#include "platform/DefaultsLog.h"
#include "platform/StoredValue.h"

#include <QMap>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>
#include <utility>

namespace ridelog {

Q_LOGGING_CATEGORY(lcDefaults, "ridelog.defaults")

namespace {

/// Writing waits for the disk: a control that is dragged must not do so at every step.
constexpr auto saveDelay = std::chrono::milliseconds(250);

} // namespace

Defaults::Defaults(QObject* parent) : Defaults(userPath(), parent) {}

Defaults::Defaults(const QString& path, QObject* parent) : QObject(parent), _file(path)
{
    if (const auto content = _file.read())
        _stored = content->values;
}

Defaults::~Defaults()
{
    if (!_pending.isEmpty())
        exchange();
}

QString Defaults::userPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/ridelog/ridelog.ini");
}

void Defaults::registerDefaults(const QVariantMap& values)
{
    auto registered = _registered;
    for (const auto& [key, value] : values.asKeyValueRange())
        registered.insert(key, StoredValue::of(value));
    replace(_registered, registered);
}

template <typename Type>
std::optional<Type> Defaults::read(const QString& key, std::optional<Type> (*convert)(const QVariant&)) const
{
    for (const auto* values : {&_stored, &_registered}) {
        const auto found = values->find(key);
        if (found == values->end())
            continue;
        if (auto value = convert(*found))
            return value;
    }
    return {};
}

bool Defaults::boolForKey(const QString& key) const
{
    return read(key, StoredValue::toBool).value_or(false);
}

int Defaults::integerForKey(const QString& key) const
{
    return read(key, StoredValue::toInteger).value_or(0);
}

float Defaults::floatForKey(const QString& key) const
{
    return read(key, StoredValue::toFloat).value_or(0.0F);
}

double Defaults::doubleForKey(const QString& key) const
{
    return read(key, StoredValue::toDouble).value_or(0.0);
}

std::optional<QString> Defaults::textForKey(const QString& key) const
{
    return read(key, StoredValue::toText);
}

std::optional<QStringList> Defaults::textListForKey(const QString& key) const
{
    return read(key, StoredValue::toTextList);
}

std::optional<QList<int>> Defaults::integerListForKey(const QString& key) const
{
    return read(key, StoredValue::toIntegerList);
}

std::optional<QDateTime> Defaults::dateForKey(const QString& key) const
{
    return read(key, StoredValue::toDate);
}

std::optional<ColourComponents> Defaults::colourForKey(const QString& key) const
{
    return read(key, StoredValue::toColour);
}

QVariant Defaults::valueForKey(const QString& key) const
{
    return _stored.value(key, _registered.value(key));
}

void Defaults::setValue(const QString& key, const QVariant& value)
{
    const auto form = StoredValue::of(value);
    if (!form.isValid())
        remove(key);
    else if (_stored.value(key) != form)
        store(key, form);
}

void Defaults::setValue(const QString& key, const QList<int>& values)
{
    setValue(key, QVariant::fromValue(values));
}

void Defaults::remove(const QString& key)
{
    if (_stored.contains(key))
        store(key, {});
}

void Defaults::store(const QString& key, const QVariant& form)
{
    const auto before = valueForKey(key);
    if (form.isValid())
        _stored.insert(key, form);
    else
        _stored.remove(key);
    _pending.insert(key, form);
    if (!std::exchange(_saveIsDue, true))
        QTimer::singleShot(saveDelay, this, &Defaults::saveIfDue);
    if (valueForKey(key) != before)
        Q_EMIT changed(key);
}

void Defaults::saveIfDue()
{
    if (_saveIsDue)
        synchronize();
}

bool Defaults::synchronize()
{
    _saveIsDue = false;
    const bool wasFailing = _failed;
    const auto content = exchange();
    const bool done = !_failed;
    replace(_stored, content);
    if (wasFailing == done)
        Q_EMIT failingChanged();
    return done;
}

Defaults::Values Defaults::exchange()
{
    if (path().isEmpty())
        return _stored;

    auto content = _stored;
    const auto read = _file.read();
    bool done = read.has_value();
    if (read) {
        if (read->setAside) {
            // A file that was damaged while we ran is written anew with what we know.
            content.insert(_pending);
            _pending = content;
        }
        content = read->values;
    }
    if (done && !_pending.isEmpty()) {
        if (const auto written = _file.write(_pending)) {
            content = *written;
            _pending.clear();
        } else {
            done = false;
        }
    }
    for (auto change = _pending.begin(); change != _pending.end(); ++change) {
        if (change->isValid())
            content.insert(change.key(), *change);
        else
            content.remove(change.key());
    }
    if (!done && !_failed)
        qCWarning(lcDefaults, "settings file %s cannot be used; what is changed lasts until the program ends",
                  qUtf8Printable(path()));
    _failed = !done;
    return content;
}

void Defaults::replace(Values& current, const Values& next)
{
    QMap<QString, QVariant> before;
    for (const auto* values : {&std::as_const(current), &next}) {
        for (auto value = values->begin(); value != values->end(); ++value)
            before.insert(value.key(), valueForKey(value.key()));
    }
    current = next;
    before.removeIf([this](const auto& entry) { return valueForKey(entry.key()) == entry.value(); });
    for (const auto& key : before.keys())
        Q_EMIT changed(key);
}

QMetaObject::Connection Defaults::observe(const QString& key, const QObject* context,
                                          std::function<void()> callback) const
{
    return connect(this, &Defaults::changed, context,
                   [key, callback = std::move(callback)](const QString& changedKey) {
                       if (changedKey == key)
                           callback();
                   });
}

} // namespace ridelog
