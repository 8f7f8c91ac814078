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
    // A code that the toolkit does not know stands for its C locale.
    const QLocale chosen = code.isEmpty() ? QLocale::system() : QLocale(code);
    if (!code.isEmpty() && chosen.language() == QLocale::C)
        return false;
    // Who has English before other languages is to have English.
    for (const QString &name : chosen.uiLanguages()) {
        const QLocale language(name);
        if (language.language() == QLocale::English || language.language() == QLocale::C)
            return true;
        if (install(language, QStringLiteral("tarrow"), QStringLiteral(":/i18n"))) {
            install(language, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
            return true;
        }
    }
    return false;
}
