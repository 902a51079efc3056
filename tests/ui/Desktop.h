#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

namespace ridelog {

/// Stands for the browser and the mail program, as long as it lives.
class Desktop : public QObject {
    Q_OBJECT

public:
    Desktop() { setHandler("open"); }
    ~Desktop() override
    {
        for (const auto& scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }
    void uninstallAll() { setHandler("missing"); }
    Q_INVOKABLE void open(const QUrl& url) { opened << url.toEncoded(); }

    QByteArrayList opened;

private:
    void setHandler(const char* method)
    {
        for (const auto& scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, method);
    }
    const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("file"),
                              QStringLiteral("mailto")};
};

} // namespace ridelog
