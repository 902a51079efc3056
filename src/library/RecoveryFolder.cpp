#include "library/RecoveryFolder.h"

#include "platform/SystemCall.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace ridelog {
namespace {

constexpr mode_t onlyThisUser = 0700;
constexpr mode_t onlyThisUserFile = 0600;
constexpr int attempts = 3;

const QString factsName = QStringLiteral("recovery.json");
const QString copySuffix = QStringLiteral(".ridelog");

// The facts as they are stored.

const QString copyKey = QStringLiteral("copy");
const QString pathKey = QStringLiteral("path");
const QString writtenKey = QStringLiteral("written");
const QString toursKey = QStringLiteral("tours");
const QString refusalKey = QStringLiteral("refusal");
const QString fileKey = QStringLiteral("file");
const QString numberKey = QStringLiteral("number");
const QString sizeKey = QStringLiteral("size");
const QString modifiedKey = QStringLiteral("modified");

QJsonObject stored(const RecoveryFacts& facts, const QString& copyName)
{
    QJsonObject json{{copyKey, copyName},
                     {pathKey, facts.path},
                     {writtenKey, facts.written.toUTC().toString(Qt::ISODateWithMs)},
                     {toursKey, facts.tours}};
    // The number of the device means nothing after a restart of the machine.
    if (facts.file)
        json[fileKey] = QJsonObject{{numberKey, static_cast<qint64>(facts.file->number)},
                                    {sizeKey, qint64{facts.file->size}},
                                    {modifiedKey, qint64{facts.file->modified}}};
    if (!facts.refusal.isEmpty())
        json[refusalKey] = facts.refusal;
    return json;
}

RecoveryFacts factsIn(const QJsonObject& json)
{
    RecoveryFacts facts{.path = json[pathKey].toString(),
                        .file = {},
                        .written = QDateTime::fromString(json[writtenKey].toString(), Qt::ISODateWithMs),
                        .tours = json[toursKey].toInteger(),
                        .refusal = json[refusalKey].toString()};
    if (json.contains(fileKey)) {
        const auto file = json[fileKey].toObject();
        auto& state = facts.file.emplace();
        state.number = static_cast<std::uint64_t>(file[numberKey].toInteger());
        state.size = file[sizeKey].toInteger();
        state.modified = file[modifiedKey].toInteger();
    }
    return facts;
}

/// Empty for what this program has not written.
QJsonObject jsonIn(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    auto json = QJsonDocument::fromJson(file.readAll()).object();
    // The copy is one of the files beside it, whoever has written this.
    const auto name = json[copyKey].toString();
    return name.isEmpty() || name.contains(u'/') ? QJsonObject() : json;
}

std::optional<QString> forceFolder(const QString& path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return systemError();
    const bool forced = uninterrupted([&] { return ::fsync(descriptor); }) == 0 || errno == EINVAL;
    auto error = forced ? std::nullopt : std::optional(systemError());
    ::close(descriptor);
    return error;
}

/// A file of this name that is on the disk, whole.
std::optional<QString> writeFile(const QString& path, const ByteSource& content,
                                 const std::atomic_bool& wanted)
{
    WholeFile file(path, QString(), onlyThisUserFile);
    if (auto error = file.write(content, [&wanted] { return wanted.load(); }))
        return error;
    if (!wanted)
        return std::nullopt;
    if (auto error = file.putInPlace())
        return error;
    return file.forceFolder();
}

} // namespace

RecoveryFolder::RecoveryFolder(QString path, int descriptor) : _path(std::move(path)), _descriptor(descriptor)
{
}

RecoveryFolder::~RecoveryFolder()
{
    ::close(_descriptor);
}

std::unique_ptr<RecoveryFolder> RecoveryFolder::make(const QString& parent, QString& error)
{
    QDir().mkpath(QFileInfo(parent).path());
    const auto parentName = QFile::encodeName(parent);
    if (::mkdir(parentName.constData(), onlyThisUser) != 0 && errno != EEXIST) {
        error = QStringLiteral("%1: %2").arg(parent, systemError());
        return nullptr;
    }
    std::unique_ptr<RecoveryFolder> folder;
    // Another program that looks for leftovers may be quicker than we, and remove the empty folder.
    for (int attempt = 0; !folder && attempt < attempts; ++attempt) {
        auto name = parentName + "/XXXXXX";
        if (!::mkdtemp(name.data())) {
            error = QStringLiteral("%1: %2").arg(parent, systemError());
            return nullptr;
        }
        folder = hold(QFile::decodeName(name));
        if (!folder)
            ::rmdir(name.constData());
    }
    if (!folder) {
        error =
            QCoreApplication::translate("DocumentRecovery", "%1: folders cannot be locked there").arg(parent);
        return nullptr;
    }
    if (auto failure = forceFolder(parent)) {
        error = QStringLiteral("%1: %2").arg(parent, *failure);
        folder->remove();
        return nullptr;
    }
    return folder;
}

std::unique_ptr<RecoveryFolder> RecoveryFolder::hold(const QString& path)
{
    const auto name = QFile::encodeName(path);
    const int descriptor = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return nullptr;
    std::unique_ptr<RecoveryFolder> folder(new RecoveryFolder(path, descriptor));
    if (uninterrupted([&] { return ::flock(descriptor, LOCK_EX | LOCK_NB); }) != 0)
        return nullptr;
    // Who had it before may have removed it meanwhile.
    struct stat found {};
    const bool isOurs =
        ::fstat(descriptor, &found) == 0 && found.st_uid == ::geteuid() && QFileInfo::exists(path);
    return isOurs ? std::move(folder) : nullptr;
}

QString RecoveryFolder::filePath(const QString& name) const
{
    return QDir(_path).filePath(name);
}

bool RecoveryFolder::isInUse() const
{
    return QFileInfo::exists(filePath(factsName));
}

RecoveryFacts RecoveryFolder::facts() const
{
    const auto json = jsonIn(filePath(factsName));
    if (!json.isEmpty())
        return factsIn(json);
    RecoveryFacts unknown;
    unknown.refusal =
        QCoreApplication::translate("DocumentRecovery", "%1 is damaged").arg(filePath(factsName));
    return unknown;
}

QString RecoveryFolder::copyPath() const
{
    const auto name = copyName();
    return name.isEmpty() ? QString() : filePath(name);
}

QString RecoveryFolder::copyName() const
{
    return jsonIn(filePath(factsName))[copyKey].toString();
}

std::optional<QString> RecoveryFolder::write(const ByteSource& content, const RecoveryFacts& facts,
                                             const std::atomic_bool& wanted)
{
    const auto old = copyName();
    const auto number = QFileInfo(old).baseName().toUInt() + 1;
    const auto name = QString::number(number) + copySuffix;
    auto error = writeFile(filePath(name), content, wanted);
    if (!error && wanted)
        error = writeFacts(facts, name);
    if (copyName() != name)
        QFile::remove(filePath(name));
    else if (!error && !old.isEmpty())
        QFile::remove(filePath(old));
    return error;
}

std::optional<QString> RecoveryFolder::setFacts(const RecoveryFacts& facts)
{
    return writeFacts(facts, copyName());
}

std::optional<QString> RecoveryFolder::writeFacts(const RecoveryFacts& facts, const QString& copyName)
{
    const auto json = QJsonDocument(stored(facts, copyName)).toJson();
    const auto content = [&json](const ByteSink& sink) { sink(json); };
    return writeFile(filePath(factsName), content, true);
}

std::optional<QString> RecoveryFolder::remove()
{
    // First what makes it count: what a program that ends here leaves is nobody's document.
    QFile::remove(filePath(factsName));
    if (!QDir(_path).removeRecursively())
        return QCoreApplication::translate("DocumentRecovery", "%1 cannot be removed").arg(_path);
    return std::nullopt;
}

} // namespace ridelog
