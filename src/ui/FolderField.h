#pragma once

#include <QLineEdit>
#include <QString>

#include <optional>

namespace ridelog {

/// The path of a folder, as people write it: "~" is the home folder, where paths begin that do not say
/// otherwise. Folders that are there are offered while one types.
class FolderField : public QLineEdit {
    Q_OBJECT

public:
    explicit FolderField(QWidget* parent = nullptr);

    /// Absolute; empty while nothing is written.
    QString path() const { return pathOf(text()); }
    void setPath(const QString& path);
    /// None, or why no files can be written there, in a sentence. A folder that is not there yet will do.
    std::optional<QString> whyUnusable() const;

    static QString pathOf(const QString& text);
};

} // namespace ridelog
