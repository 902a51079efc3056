#include "ui/FolderField.h"

#include <QCompleter>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>

namespace ridelog {
namespace {

/// Knows the folders that are there, by what people write.
class FolderCompleter : public QCompleter {
public:
    explicit FolderCompleter(QObject* parent) : QCompleter(parent)
    {
        auto* folders = new QFileSystemModel(this);
        folders->setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
        folders->setRootPath(QDir::rootPath());
        setModel(folders);
    }

    QStringList splitPath(const QString& text) const override
    {
        const auto path = FolderField::pathOf(text);
        // After a separator the folders within are looked for.
        const bool isWithin = text.endsWith(u'/') && !path.endsWith(u'/');
        return QCompleter::splitPath(isWithin ? path + u'/' : path);
    }
};

} // namespace

FolderField::FolderField(QWidget* parent) : QLineEdit(parent)
{
    setCompleter(new FolderCompleter(this));
}

void FolderField::setPath(const QString& path)
{
    setText(QDir::toNativeSeparators(path));
}

QString FolderField::pathOf(const QString& text)
{
    auto path = QDir::fromNativeSeparators(text.trimmed());
    if (path.isEmpty())
        return path;
    if (path == u"~" || path.startsWith(QStringLiteral("~/")))
        path.replace(0, 1, QDir::homePath());
    return QDir::cleanPath(QDir::home().absoluteFilePath(path));
}

std::optional<QString> FolderField::whyUnusable() const
{
    const auto wanted = path();
    if (wanted.isEmpty())
        return tr("Say in which folder.");
    // What is there of the path decides.
    QFileInfo nearest(wanted);
    while (!nearest.exists() && !nearest.isSymLink() && !nearest.isRoot())
        nearest.setFile(nearest.path());
    const auto name = QDir::toNativeSeparators(nearest.filePath());
    if (!nearest.isDir())
        return tr("%1 is not a folder.").arg(name);
    if (!nearest.isWritable())
        return tr("You may not write in %1.").arg(name);
    return std::nullopt;
}

} // namespace ridelog
