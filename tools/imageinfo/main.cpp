// tarrow-imageinfo [--json] FILE…
//
// Prints what the viewer's image library sees in each file. Ends with 0 when every file loads, 1 when one does not, 2 when
// it is called wrongly.

#include "imagereport.h"
#include "reporttext.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <cstdio>

namespace {

constexpr int kUsageError = 2;

void print(std::FILE *stream, const QByteArray &text)
{
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stream);
    std::fflush(stream); // both streams may go to one file
}

bool printReports(const QStringList &paths, bool asJson)
{
    bool allLoaded = true;
    QJsonArray reports;
    for (const QString &path : paths) {
        QString reason;
        const auto report = inspectImage(path, reason);
        if (!report) {
            allLoaded = false;
            print(stderr, (path + QStringLiteral(": cannot be read: ") + reason + u'\n').toUtf8());
            reports.append(QJsonObject{{QStringLiteral("file"), path}, {QStringLiteral("error"), reason}});
        } else if (asJson) {
            reports.append(toJson(path, *report));
        } else {
            print(stdout, toText(path, *report).toUtf8());
        }
    }
    if (asJson)
        print(stdout, QJsonDocument(reports).toJson());
    return allLoaded;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Prints what the viewer sees in image files."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON array."));
    parser.addOption(json);
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("The image files."),
                                 QStringLiteral("FILE…"));
    const bool understood = parser.parse(QCoreApplication::arguments());
    if (understood && parser.isSet(help)) {
        print(stdout, parser.helpText().toUtf8());
        return 0;
    }
    if (!understood || parser.positionalArguments().isEmpty()) {
        const QString fault = understood ? QStringLiteral("Give at least one FILE.") : parser.errorText();
        print(stderr, (fault + QLatin1Char('\n') + parser.helpText()).toUtf8());
        return kUsageError;
    }
    return printReports(parser.positionalArguments(), parser.isSet(json)) ? 0 : 1;
}
