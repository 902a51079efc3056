#pragma once

#include "platform/ColourComponents.h"
#include "platform/DefaultsFile.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace ridelog {

/// The user's choices: values by key that outlive the program, in a settings file that people can read.
///
/// A key may be any text. Where the user stored no value, or one that cannot be read as the type that is
/// asked for, the registered value counts. What is written is there for readers at once and reaches the file
/// a moment later from the event loop, with synchronize, and at the latest with the end of the store. While
/// the file cannot be written the values last as long as the store.
///
/// Several stores, in one process or many, may share a file. Each learns in synchronize what the others
/// wrote.
class Defaults : public QObject {
    Q_OBJECT

public:
    /// Over the file userPath().
    explicit Defaults(QObject* parent = nullptr);
    /// Over another file. An empty path stands for none: what is set lasts as long as the store.
    explicit Defaults(const QString& path, QObject* parent = nullptr);
    ~Defaults() override;

    /// The file in the user's configuration folder.
    static QString userPath();
    const QString& path() const { return _file.path(); }

    /// Adds values that count while the user has stored none, in place of those registered earlier for the
    /// same keys. Writes nothing.
    void registerDefaults(const QVariantMap& values);

    /// Whether there is a value, stored or registered.
    bool contains(const QString& key) const { return _stored.contains(key) || _registered.contains(key); }
    bool isStored(const QString& key) const { return _stored.contains(key); }

    // Reading

    bool boolForKey(const QString& key) const;                              ///< false without a value
    int integerForKey(const QString& key) const;                            ///< 0 without a value
    float floatForKey(const QString& key) const;                            ///< 0 without a value
    double doubleForKey(const QString& key) const;                          ///< 0 without a value
    std::optional<QString> textForKey(const QString& key) const;            ///< none without a value
    std::optional<QStringList> textListForKey(const QString& key) const;    ///< none without a value
    std::optional<QList<int>> integerListForKey(const QString& key) const;  ///< none without a value
    std::optional<QDateTime> dateForKey(const QString& key) const;          ///< none without a value
    std::optional<ColourComponents> colourForKey(const QString& key) const; ///< none without a value
    /// The value in its stored form (see StoredValue), invalid without one.
    QVariant valueForKey(const QString& key) const;

    // Writing

    /// Stores a bool, number, text, date, colour, list of these, byte block, or what else QSettings takes. An
    /// invalid value or date removes what is stored.
    void setValue(const QString& key, const QVariant& value);
    void setValue(const QString& key, const QList<int>& values);
    void setValue(const QString& key, const char16_t* text) = delete; // would be taken for a bool
    /// Removes what the user stored; a registered value counts again.
    void remove(const QString& key);

    /// Writes what is not in the file yet, forces it to disk, and takes over what others wrote. False if the
    /// file could not be read or does not hold everything afterwards; the next call tries again.
    bool synchronize();
    /// Whether the file could not be used last; what is changed lasts until the program ends.
    bool isFailing() const { return _failed; }

    /// Calls `callback` after each change of this key's value, as long as `context` lives.
    QMetaObject::Connection observe(const QString& key, const QObject* context,
                                    std::function<void()> callback) const;

Q_SIGNALS:
    /// Readers of this key get another value than before, whoever wrote it.
    void changed(const QString& key);
    /// The file cannot be used, or can again.
    void failingChanged();

private:
    using Values = DefaultsFile::Values;

    /// The first of the stored and the registered value that `convert` can read.
    template <typename Type>
    std::optional<Type> read(const QString& key, std::optional<Type> (*convert)(const QVariant&)) const;
    void store(const QString& key, const QVariant& form);
    void saveIfDue();
    /// Writes what is pending and answers all that is stored then, in the file or here alone.
    Values exchange();
    /// Takes over values and emits what changed.
    void replace(Values& current, const Values& next);

    DefaultsFile _file;
    Values _registered;
    Values _stored;
    Values _pending; ///< not in the file yet; invalid: to be removed
    bool _saveIsDue = false;
    bool _failed = false; ///< the file did not hold everything after the last exchange
};

} // namespace ridelog
