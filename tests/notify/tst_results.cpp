#include "alertorfarm.h"
#include "glpath.h"
#include "modals.h"
#include "openviewers.h"

#include <notify/resultopener.h>
#include <viewer/calibrationpanel.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QScopeGuard>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtGui/QDesktopServices>
#include <QtGui/QWindow>
#include <QtWidgets/QMessageBox>

#include <utility>

using namespace Qt::StringLiterals;

/// What becomes of the results that events tell of.
class TestResults final : public QObject {
    Q_OBJECT

public:
    static void initMain()
    {
        chooseGlPath();
        Farm::prepare();
    }

public Q_SLOTS:
    void noteOpened(const QUrl &url) { m_opened = url; }

private Q_SLOTS:
    void resultsOpenOutsideOrSayWhyNot()
    {
        QTemporaryDir folder;
        const QString viewer = folder.filePath(u"viewer"_s);
        QFile script(viewer);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > \"$0.new\" && mv \"$0.new\" \"$0.opened\"\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        Farm farm(u"imageViewer/imageViewer"_s, viewer);
        farm.show();
        TClientLib::TJob job = farm::job();
        job.attributeSetString("frames_mask", "/no where/$(touch x)/a.####.exr");
        job.setFrameRanges({{5, 9, 1}});
        farm.send(farm::notification(1, &job));
        QTRY_COMPARE(farm.alertor.events().size(), 1);
        farm.click(0);
        const auto opened = [viewer] {
            QFile arguments(viewer + u".opened"_s);
            const auto remove = qScopeGuard([&arguments] { arguments.remove(); });
            return QTest::qWaitFor([&] { return arguments.open(QIODevice::ReadOnly); }) ? arguments.readAll()
                                                                                        : QByteArray();
        };
        farm.alertor.actOpenFrameExternally();
        QCOMPARE(opened(), "1|/no where/$(touch x)/a.0005.exr");
        QVERIFY(ResultOpener::startExternalViewer(viewer, u"--exec.####.exr"_s));
        QCOMPARE(opened(), "1|./--exec.####.exr");
        QSettings().setValue(u"imageViewer/imageViewerMode"_s, 1);
        QSettings().setValue(u"imageViewer/launchImageViewer"_s, true);
        Farm automatic(u"imageViewer/imageViewer"_s, viewer);
        TClientLib::TJob still = farm::stillJob("/f/still.exr");
        still.setStatus(2048);
        automatic.send(farm::notification(1, &still));
        QCOMPARE(opened(), "1|/f/still.exr");

        const auto saidBy = [&farm](void (Alertor::*act)()) {
            QString said;
            whenModalOpens([&said](QWidget *box) {
                const auto *plain = qobject_cast<QMessageBox *>(box);
                QVERIFY(!plain || plain->textFormat() == Qt::PlainText);
                for (const QLabel *label : box->findChildren<QLabel *>())
                    said += label->text();
                QTest::keyClick(box->focusWidget(), Qt::Key_Return);
            });
            (farm.alertor.*act)();
            return said;
        };
        QVERIFY(saidBy(&Alertor::actOpenFrame)
                    .contains(u"OpenGL not supported by your GPU! Image viewer cannot be used!"_s));
        QCOMPARE(saidBy(&Alertor::actOpenOutput), u"Cannot open output folder /no where/$(touch x)"_s);

        // A folder that is gone opens the one above, and so does what is no folder: nothing that the farm names is run.
        QDesktopServices::setUrlHandler(u"file"_s, this, "noteOpened");
        for (const QString &output : {folder.path(), folder.filePath(u"gone"_s), viewer}) {
            TClientLib::TJob done = farm::job();
            done.attributeSetString("output_folder", output.toStdString());
            farm.send(farm::notification(1, &done));
            QTRY_COMPARE(farm.alertor.events().size(), 2);
            farm.click(1);
            farm.alertor.actOpenOutput();
            QCOMPARE(std::exchange(m_opened, {}), QUrl::fromLocalFile(folder.path()));
            QTest::keyClick(farm.list(), Qt::Key_Return);
            QCOMPARE(std::exchange(m_opened, {}), QUrl::fromLocalFile(folder.path()));
            farm.alertor.actRemoveSelected();
        }
        QDesktopServices::unsetUrlHandler(u"file"_s);
    }

    void framesOpenInAViewerEach()
    {
        TAppState::instance() = m_openGl;
        const auto restore = qScopeGuard([] { TAppState::instance() = {}; });
        QTemporaryDir folder;
        TClientLib::TJob job = farm::job();
        job.attributeSetString("frames_mask", folder.filePath(u"a.####.exr"_s).toStdString());
        job.setFrameRanges({{5, 9, 1}});
        const QString picture = folder.filePath(u"still.png"_s);
        QVERIFY(QImage(10, 10, QImage::Format_RGB32).save(picture));
        const TClientLib::TJob still = farm::stillJob(picture.toStdString());
        TClientLib::TChunk chunk = farm::chunk();
        chunk.setFrames(5, 6, 1);
        Farm notAsked;
        notAsked.send(farm::notification(1, &still));
        QSettings().setValue(u"imageViewer/imageViewerMaxGPUCache"_s, 4000);
        Farm farm(u"imageViewer/launchImageViewer"_s, true);
        farm.show();

        farm.send(farm::notification(1, &job));
        farm.send(farm::notification(2, &job, &chunk));
        QTRY_COMPARE(farm.alertor.events().size(), 2);
        QVERIFY(openViewers().isEmpty());
        farm.click(0);
        farm.list()->selectAll();
        QTest::keyClick(farm.list(), Qt::Key_Enter); // the current event, whatever is selected
        QCOMPARE(openViewers().size(), 1);
        qDeleteAll(openViewers());
        farm.alertor.actOpenFrame();
        QCOMPARE(openViewers().size(), 2);
        QCOMPARE(openViewers()[0]->session().sequence().frames, (std::set<long>{5, 6, 7, 8, 9}));
        QCOMPARE(openViewers()[0]->session().marking().chunks().size(), 1U);
        QCOMPARE(openViewers()[1]->session().sequence().frames, (std::set<long>{5, 6}));
        farm.alertor.hide();
        for (ImageViewer *viewer : openViewers()) {
            QVERIFY(QTest::qWaitForWindowExposed(viewer)); // not gone with the list
            const QWindow &window = *viewer->windowHandle();
            QVERIFY(window.type() == Qt::Window && !window.transientParent()); // nor kept above others
        }
        qDeleteAll(openViewers());

        for (int i = 0; i < 25; ++i)
            farm.send(farm::notification(1, &still));
        QTRY_COMPARE(farm.alertor.events().size(), 27);
        QTRY_COMPARE(openViewers().size(), 20); // and no more by themselves
        QSet<std::pair<int, int>> places;
        QSet<QString> usages;
        for (const ImageViewer *viewer : openViewers()) {
            QVERIFY(QString::fromStdString(viewer->session().file()).endsWith(u"still.png"_s));
            places.insert({viewer->x(), viewer->y()});
            usages += viewer->findChild<QLabel *>(u"infoLabel"_s)->text();
        }
        QCOMPARE(places.size(), 20);
        // The budgets and the gammas are those of the preferences, each its own.
        QVERIFY(usages.contains(u"VRAM Cache Usage: 7.50% RAM Cache Usage: 0.00% "_s));
        QCOMPARE(openViewers().first()->calibration().inputGamma(), 1.0F);
        farm.alertor.openImageViewer();
        QCOMPARE(openViewers().size(), 21);
        QCOMPARE(notAsked.alertor.events().size(), 1);
    }

private:
    QUrl m_opened;
    // What there is; the tests run without, but for the one of the viewer.
    const TAppState m_openGl = std::exchange(TAppState::instance(), {});
};

QTEST_MAIN(TestResults)
#include "tst_results.moc"
