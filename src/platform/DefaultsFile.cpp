#include "platform/DefaultsFile.h"

#include "platform/DefaultsLog.h"
#include "platform/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>

namespace ridelog {
namespace {

/// How long another process may hold the file before we give up.
constexpr int lockTimeout = 2000; // milliseconds

/// QSettings takes '/' and '\' for the borders of groups, and no empty key.
QString encodedKey(QString key)
{
    if (key.isEmpty())
        return QStringLiteral("%");
    return key.replace(u'%', QStringLiteral("%25"))
        .replace(u'/', QStringLiteral("%2F"))
        .replace(u'\\', QStringLiteral("%5C"));
}

QString decodedKey(QString key)
{
    if (key == u"%")
        return {};
    return key.replace(QStringLiteral("%2F"), QStringLiteral("/"))
        .replace(QStringLiteral("%5C"), QStringLiteral("\\"))
        .replace(QStringLiteral("%25"), QStringLiteral("%"));
}

/// A private copy of the file's bytes, for QSettings to work on.
class PrivateCopy {
public:
    explicit PrivateCopy(const QByteArray& bytes) : _path(_folder.filePath(QStringLiteral("copy.ini")))
    {
        QFile file(_path);
        _usable = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    }

    /// None if the bytes are not INI.
    std::optional<DefaultsFile::Values> values() const
    {
        const QSettings settings(_path, QSettings::IniFormat);
        DefaultsFile::Values values;
        for (const auto& key : settings.allKeys()) {
            // Groups are not ours; they only stay in the file.
            if (key.contains(u'/'))
                continue;
            const auto value = settings.value(key);
            // An empty list is written as no value.
            values.insert(decodedKey(key), value.isValid() ? value : QStringList());
        }
        return settings.status() == QSettings::NoError ? std::optional(values) : std::nullopt;
    }

    /// The bytes with these changes.
    std::optional<QByteArray> changed(const DefaultsFile::Values& changes) const
    {
        QSettings settings(_path, QSettings::IniFormat);
        for (auto change = changes.begin(); change != changes.end(); ++change) {
            if (change->isValid())
                settings.setValue(encodedKey(change.key()), *change);
            else
                settings.remove(encodedKey(change.key()));
        }
        settings.sync();
        QFile file(_path);
        if (settings.status() != QSettings::NoError || !file.open(QIODevice::ReadOnly))
            return {};
        return file.readAll();
    }

    bool isUsable() const { return _usable; }

private:
    QTemporaryDir _folder;
    QString _path;
    bool _usable = false;
};

bool isText(const QByteArray& bytes)
{
    return bytes.isValidUtf8() && !bytes.contains('\0');
}

bool holdsAll(const DefaultsFile::Values& values, const DefaultsFile::Values& changes)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (values.value(change.key()) != *change)
            return false;
    }
    return true;
}

} // namespace

std::optional<DefaultsFile::Content> DefaultsFile::read()
{
    const auto bytes = load();
    if (!bytes)
        return {};
    if (*bytes == _parsed)
        return Content{_parsedValues};

    const PrivateCopy copy(*bytes);
    if (!copy.isUsable())
        return {};
    auto values = isText(*bytes) ? copy.values() : std::nullopt;
    if (values) {
        _parsed = *bytes;
        _parsedValues = *std::move(values);
        return Content{_parsedValues};
    }
    if (!setAside())
        return {};
    _parsed.clear();
    _parsedValues.clear();
    return Content{{}, true};
}

std::optional<DefaultsFile::Values> DefaultsFile::write(const Values& changes)
{
    QDir().mkpath(QFileInfo(_path).path());
    QLockFile lock(_path + QStringLiteral(".lock"));
    if (!lock.tryLock(lockTimeout) || !read())
        return {};
    const PrivateCopy copy(_parsed);
    const auto bytes = copy.isUsable() ? copy.changed(changes) : std::nullopt;
    // Nothing replaces the file that would not give back what was to be kept.
    auto values = bytes ? PrivateCopy(*bytes).values() : std::nullopt;
    if (!values || !holdsAll(*values, changes) || !replace(*bytes))
        return {};
    _parsed = *bytes;
    _parsedValues = *values;
    return values;
}

/// The bytes of the file, none of a missing one.
std::optional<QByteArray> DefaultsFile::load() const
{
    const QFileInfo info(_path);
    if (!info.exists() && !info.isSymLink())
        return QByteArray();
    QFile file(_path);
    // A pipe would keep us waiting.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    auto bytes = file.readAll();
    return file.error() == QFile::NoError ? std::optional(std::move(bytes)) : std::nullopt;
}

bool DefaultsFile::setAside() const
{
    auto name = _path + QStringLiteral(".damaged");
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = _path + QStringLiteral(".damaged-%1").arg(number);
    if (!QFile::rename(_path, name)) {
        qCWarning(lcDefaults, "settings file %s is damaged and cannot be renamed", qUtf8Printable(_path));
        return false;
    }
    qCWarning(lcDefaults, "settings file %s is damaged; it is kept as %s", qUtf8Printable(_path),
              qUtf8Printable(name));
    return true;
}

bool DefaultsFile::replace(const QByteArray& bytes) const
{
    return !writeWholeFile(_path, bytes) && load() == bytes;
}

} // namespace ridelog
