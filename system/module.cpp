#include "module.h"

#include "machine.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLibrary>

#include <cstdio>

namespace {

/// Empty when the module is in none of the places.
QString fileOf(const char *module)
{
    const QString name =
        QStringLiteral(TARROW_MODULE_PREFIX "%1" TARROW_MODULE_SUFFIX).arg(QLatin1String(module));
    const QDir folder(Machine::executable().parent_path());
    for (const char *place : {".", "../lib", "../lib/tarrow-alertor"}) {
        QString file = folder.filePath(QLatin1String(place) + QLatin1Char('/') + name);
        if (QFile::exists(file))
            return file;
    }
    return {};
}

} // namespace

Module::Function Module::function(const char *module, const char *function, Symbols symbols)
{
    const QString file = fileOf(module);
    if (file.isEmpty()) {
        std::fprintf(stderr, "The module %s is missing: install the program again\n", module);
        return nullptr;
    }
    QLibrary library(file);
    QLibrary::LoadHints hints = QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint;
    hints.setFlag(QLibrary::ExportExternalSymbolsHint, symbols == Symbols::Shared);
    library.setLoadHints(hints);
    const Function found = library.resolve(function);
    if (!found)
        std::fprintf(stderr, "%s\n", library.errorString().toLocal8Bit().constData());
    return found;
}
