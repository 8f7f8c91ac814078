#include "language.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

#include <memory>

namespace {

bool install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (!translator->load(locale, name, QStringLiteral("_"), folder))
        return false;
    return QCoreApplication::installTranslator(translator.release());
}

} // namespace

bool installLanguage(const QString &code)
{
    if (code.isEmpty())
        return installFirstLanguage(QLocale::system().uiLanguages());
    // A code that the toolkit does not know stands for its C locale.
    const QLocale locale(code);
    return locale.language() != QLocale::C && installFirstLanguage(locale.uiLanguages());
}

bool installFirstLanguage(const QStringList &codes)
{
    for (const QString &code : codes) {
        const QLocale locale(code);
        // Who has English before other languages is to have English.
        if (locale.language() == QLocale::English || locale.language() == QLocale::C)
            return true;
        if (install(locale, QStringLiteral("tarrow"), QStringLiteral(":/i18n"))) {
            install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
            return true;
        }
    }
    return false;
}
