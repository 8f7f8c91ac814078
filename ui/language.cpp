#include "language.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

#include <memory>

namespace {

/// Texts of the toolkit's own that are translated here too: its translations are a package that not every machine has.
[[maybe_unused]] constexpr const char *kStandardButtons[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),  QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"), QT_TRANSLATE_NOOP("QPlatformTheme", "Open"),
};

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
