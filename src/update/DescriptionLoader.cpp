#include "update/DescriptionLoader.h"

#include "platform/WholeFile.h"

#include <QFile>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <utility>

namespace ridelog {
namespace {

using namespace std::chrono_literals;

constexpr auto usualTimeLimit = 10s;
constexpr int mostRedirects = 10;
constexpr int firstErrorStatus = 400;

UpdateFailure notLoaded(const QString& reason)
{
    return {UpdateFailure::Kind::notLoaded, reason};
}

/// What the server said, or what came between.
QString whyNoAnswer(const QNetworkReply& reply)
{
    const auto status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status < firstErrorStatus)
        return reply.errorString();
    const auto words = reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
    return DescriptionLoader::tr("the server answers %1 %2").arg(status).arg(words).trimmed();
}

} // namespace

DescriptionLoader::DescriptionLoader(QObject* parent) : QObject(parent)
{
    _timeLimit.setSingleShot(true);
    _timeLimit.setTimerType(Qt::PreciseTimer);
    _timeLimit.setInterval(usualTimeLimit);
    _timeLimit.callOnTimeout([this] { giveUp(tooSlow()); });
}

bool DescriptionLoader::isWebAddress(const QUrl& url)
{
    return url.isValid() && !url.host().isEmpty() && (url.scheme() == u"http" || url.scheme() == u"https");
}

bool DescriptionLoader::isLoadable(const QUrl& url)
{
    return isWebAddress(url) || (url.isValid() && url.isLocalFile());
}

void DescriptionLoader::load(const QUrl& url)
{
    if (isWebAddress(url))
        return loadFromWeb(url);
    QTimer::singleShot(0, this, [this, url] {
        if (url.isEmpty())
            Q_EMIT failed(notLoaded(tr("this build of ridelog has no address to look for updates at")));
        else if (!isLoadable(url))
            Q_EMIT failed(notLoaded(tr("not an address of the web (http, https) or of a file")));
        else
            loadFromFile(url.toLocalFile());
    });
}

void DescriptionLoader::loadFromFile(const QString& path)
{
    // A pipe would keep us waiting.
    if (const auto reason = whyNoFile(path)) {
        Q_EMIT failed(notLoaded(*reason));
        return;
    }
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const auto bytes = isOpen ? file.read(largest + 1) : QByteArray();
    if (file.error() != QFile::NoError)
        Q_EMIT failed(notLoaded(file.errorString()));
    else if (bytes.size() > largest)
        Q_EMIT failed(tooLarge());
    else
        Q_EMIT loaded(bytes);
}

void DescriptionLoader::loadFromWeb(const QUrl& url)
{
    QNetworkRequest request(url);
    // To http and https only, and never from the safe one to the other.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    // A packed answer could be small and its content large.
    request.setRawHeader("Accept-Encoding", "identity");
    _bytes.clear();
    _reply = _network.get(request);
    _reply->setReadBufferSize(largest + 1);
    connect(_reply, &QNetworkReply::readyRead, this, &DescriptionLoader::take);
    connect(_reply, &QNetworkReply::finished, this, &DescriptionLoader::finish);
    _timeLimit.start();
}

void DescriptionLoader::take()
{
    _bytes += _reply->read(largest + 1 - _bytes.size());
    if (_bytes.size() > largest)
        giveUp(tooLarge());
}

void DescriptionLoader::finish()
{
    if (_reply->error() != QNetworkReply::NoError)
        return giveUp(notLoaded(whyNoAnswer(*_reply)));
    take();
    if (!_reply)
        return;
    _timeLimit.stop();
    std::exchange(_reply, nullptr)->deleteLater();
    Q_EMIT loaded(_bytes);
}

void DescriptionLoader::giveUp(const UpdateFailure& why)
{
    _timeLimit.stop();
    auto* reply = std::exchange(_reply, nullptr);
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
    Q_EMIT failed(why);
}

UpdateFailure DescriptionLoader::tooLarge()
{
    return {UpdateFailure::Kind::notADescription, tr("larger than %1 MiB").arg(largest >> 20)};
}

UpdateFailure DescriptionLoader::tooSlow() const
{
    const std::chrono::duration<double> seconds = _timeLimit.intervalAsDuration();
    return notLoaded(tr("it took longer than %1 s").arg(seconds.count()));
}

} // namespace ridelog
