#pragma once

#include "update/ApplicationInfo.h"
#include "update/DescriptionLoader.h"
#include "update/UpdateFailure.h"

#include <QDateTime>
#include <QMap>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QXmlStreamAttributes)

namespace ridelog {

class Defaults;
class UpdateAlerts;

/// Finds out whether there is another version than the one that runs: loads a small XML document that
/// describes the newest one, compares, and offers to download it. Made for one check.
class XMLUpdater : public QObject {
    Q_OBJECT

public:
    /// For the running application, at the address that it gives. `defaults` have to outlive this.
    XMLUpdater(ApplicationInfo application, Defaults& defaults, QObject* parent = nullptr);
    /// The same at another address.
    static std::unique_ptr<XMLUpdater> initWithUrlString(const QString& urlString,
                                                         ApplicationInfo application, Defaults& defaults);

    /// Starts a check, unless one is under way. Stores `now`, the current date, as that of the last check
    /// when the outcome is there, whatever it is.
    void checkForUpdate(const QDateTime& now);
    /// The same if the last check is as many days back as the user has chosen. False if it is not: there is
    /// no outcome then.
    bool checkForUpdateAfterTimePeriod(const QDateTime& now);
    /// Why the check came to no comparison; none if it did.
    const std::optional<UpdateFailure>& failure() const { return _failure; }

    /// Shows the outcome. True if the user wants to download the new version.
    bool shouldDownloadNewVersionDependingOn(bool found, UpdateAlerts& alerts) const;
    /// Hands the download address to `open`, the user's browser, and answers what that answers: whether it
    /// could. False for an address that is not http or https.
    bool startDownloadingNewVersion(const std::function<bool(const QUrl&)>& open) const;

    // What the document says of the newest version, null where it does not.

    QString applicationIdentifier() const;
    QString applicationVersion() const;
    QString urlString() const; ///< the download address
    /// For a language code like "de-DE" also the text in "de", else the one in English.
    QString descriptionTextForLanguage(const QString& language) const;

Q_SIGNALS:
    /// The outcome of a check, told once and never before the check's call has returned.
    void checked(bool found);

private:
    void _fail(const UpdateFailure& why);
    void _finish(bool found);
    /// Whether the document offers another version. Fails where it does not say which.
    bool _compare();

    // XMLUpdaterParsing.cpp

    /// Fills the record. What is wrong with the document, or none.
    std::optional<QString> _parse(const QByteArray& xml);
    void _didStartElement(const QString& elementName, const QXmlStreamAttributes& attributes);
    void _foundCharacters(const QString& characters);
    void _didEndElement(const QString& elementName);
    void _parseErrorOccurred(int code, const QString& description, qint64 line, qint64 column) const;

    const ApplicationInfo _application;
    Defaults& _defaults;
    QUrl _url;                                  ///< of the document
    QMap<QString, QString> _applicationDict;    ///< the record: by element, descriptions by language code
    std::optional<QString> _currentStringValue; ///< text of the element that is read
    QString _language;                          ///< of the description that is read
    bool _inElement = false;                    ///< text is collected
    DescriptionLoader _loader;
    std::optional<QDateTime> _checking; ///< the date of the check that is under way
    std::optional<UpdateFailure> _failure;
};

} // namespace ridelog
