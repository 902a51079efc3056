#include "platform/Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace ridelog {
namespace {

const QString translatorName = QStringLiteral("of the language that is spoken");
const QString folder = QStringLiteral(":/translations");

/// Goes with the application, or when another language is spoken.
void install(std::unique_ptr<QTranslator> translator)
{
    translator->setObjectName(translatorName);
    translator->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(translator.release());
}

} // namespace

void speakLanguageOf(const QLocale& locale)
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>(translatorName));
    // What is in the sources is English in all but the plural forms.
    auto plurals = std::make_unique<QTranslator>();
    if (plurals->load(QStringLiteral("ridelog_en"), folder))
        install(std::move(plurals));
    auto own = std::make_unique<QTranslator>();
    if (!own->load(locale, QStringLiteral("ridelog"), QStringLiteral("_"), folder))
        return;
    // Not what the toolkit has for a language that we do not speak: words of two would stand side by side.
    auto toolkit = std::make_unique<QTranslator>();
    if (toolkit->load(QStringLiteral("qtbase_") + own->language(),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        install(std::move(toolkit));
    install(std::move(own));
}

QLocale messageLocale()
{
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

} // namespace ridelog
