#include "windowbook.h"

#include "farmpackets.h"
#include "modals.h"

#include <net/protocol/packets.h>
#include <notify/alertor.h>
#include <notify/events/eventbuilder.h>
#include <notify/events/notifyevent.h>
#include <notify/firstrun.h>
#include <notify/messages.h>
#include <notify/preferences.h>
#include <notify/settings/settings.h>
#include <ui/product.h>
#include <ui/qskinnedmessagebox.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/imageviewer.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabWidget>

namespace {

constexpr int kFrames = 9;

void addEvents(Alertor &alertor, int from, int to)
{
    for (int number = from; number < to; ++number) {
        const TClientLib::TJob job = farm::job(number % 3 == 0 ? 1024 : number % 3 == 1 ? 2048 : 512);
        alertor.handleNewEvent(buildEvent(farm::notification(1, &job), quint64(number) + 1));
    }
}

} // namespace

void WindowBook::visitAll()
{
    visitEvents();
    visitPreferences();
    visitBoxes();
    visitViewers();
}

void WindowBook::show(const QString &name, QWidget &window)
{
    window.show();
    QVERIFY2(QTest::qWaitForWindowExposed(&window), qPrintable(name));
    // What was just laid out is painted by the next turns of the loop.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    m_visit(name, window);
}

void WindowBook::visitPages(const QString &name, QWidget &window)
{
    if (auto *tabs = window.findChild<QTabWidget *>()) {
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            show(QStringLiteral("%1-%2").arg(name).arg(page + 1), window);
        }
    } else if (auto *stack = window.findChild<QStackedWidget *>()) {
        for (int page = 0; page < stack->count(); ++page) {
            stack->setCurrentIndex(page);
            show(QStringLiteral("%1-%2").arg(name).arg(page + 1), window);
        }
    } else {
        show(name, window);
    }
}

void WindowBook::visitEvents()
{
    Alertor alertor;
    alertor.loadSettings();
    show(QStringLiteral("events-0"), alertor);
    addEvents(alertor, 0, 5);
    show(QStringLiteral("events-5"), alertor);
    for (auto *menu : alertor.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly)) {
        menu->popup(alertor.geometry().center());
        show(menu->objectName(), *menu);
        menu->close();
    }
    alertor.actAckEvents();
    addEvents(alertor, 5, 3000);
    show(QStringLiteral("events-3000"), alertor);
}

void WindowBook::visitPreferences()
{
    preferences dialog;
    dialog.setValues(Settings());
    visitPages(QStringLiteral("preferences"), dialog);
    FirstRun setup{LinkSettings()};
    show(QStringLiteral("setup"), setup);
}

void WindowBook::visitBoxes()
{
    const auto visitModal = [this](const QString &name) {
        whenModalOpens([this, name](QWidget *box) {
            show(name, *box);
            box->close();
        });
    };
    visitModal(QStringLiteral("about"));
    Messages::showAbout(nullptr);
    visitModal(QStringLiteral("error"));
    Messages::showError(nullptr, QStringLiteral("Cannot open output folder /projects/sh010/beauty"));
    visitModal(QStringLiteral("quit"));
    Messages::askToQuit(nullptr);
    visitModal(QStringLiteral("question"));
    QSkinnedMessageBox::question(
        nullptr, product::kProductTitle,
        QSkinnedDialog::tr("Are you sure you want to set the default size and position for this dialog ?"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

void WindowBook::visitViewers()
{
    CacheTotals totals;
    ImageViewer viewer(totals, {.exrImportGamma = 2.2F});
    show(QStringLiteral("viewer-empty"), viewer);
    QTemporaryDir folder;
    for (int frame = 1; frame <= kFrames; ++frame) {
        QImage picture(640, 360, QImage::Format_RGB32);
        picture.fill(QColor::fromHsv(frame * 30, 160, 160));
        picture.save(folder.filePath(QStringLiteral("shot.%1.png").arg(frame, 4, 10, QLatin1Char('0'))));
    }
    viewer.setFramesPath({.path = folder.filePath(QStringLiteral("shot.####.png")).toStdString(),
                          .force = true,
                          .maskIsSequence = true});
    show(QStringLiteral("viewer-sequence"), viewer);
    QFile::copy(folder.filePath(QStringLiteral("shot.0001.png")),
                folder.filePath(QStringLiteral("still.png")));
    viewer.setFramesPath({.path = folder.filePath(QStringLiteral("still.png")).toStdString(), .force = true});
    show(QStringLiteral("viewer-picture"), viewer);
}
