#include "fakedisplay.h"
#include "jobframes.h"

#include <viewer/session/viewersession.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>
#include <tuple>

using namespace Qt::StringLiterals;
using TClientLib::TJob;

namespace {

constexpr QSize kFrame(16, 8);

} // namespace

class ViewerSessionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_totals = {};
        m_session = std::make_unique<ViewerSession>(m_totals, m_display);
        for (int i = 1; i <= 5; ++i)
            writeFrame(file(i), kFrame);
    }

    void cleanup()
    {
        m_session.reset();
        QCOMPARE(m_display.textures, 0);
        QCOMPARE(m_totals.videoMemoryUsed + m_totals.mainMemoryUsed, 0U);
    }

    void opensWhatIsAskedFor()
    {
        const QSignalSpy opened(m_session.get(), &ViewerSession::opened);
        const QSignalSpy firstShown(m_session.get(), &ViewerSession::firstFrameShown);
        open(u"shot.0003.exr"_s);
        QVERIFY(m_session->lastLoad().shown());
        QCOMPARE(shownFile(), file(3));
        QCOMPARE(m_session->range(), (PlaybackRange{1, 5, 1}));
        m_session->setFrame(99);
        QCOMPARE(m_session->frame(), 5);
        // The same path again does nothing, unless forced: then the frame stays, if the path names none.
        const std::string mask = m_session->sequence().framesPath;
        m_session->open({.path = mask, .preferredFrame = 2, .maskIsSequence = true});
        QCOMPARE(m_session->frame(), 5);
        m_session->open({.path = mask, .force = true, .maskIsSequence = true});
        QCOMPARE(m_session->frame(), 5);
        QCOMPARE(opened.size(), 2);
        QVERIFY(opened[0][0].toBool() && !opened[1][0].toBool());
        open(u"none.exr"_s);
        QVERIFY(!m_session->canPlay());
        QVERIFY(!m_display.shown);
        QCOMPARE(firstShown.count(), 1);
    }

    void playsRoundItsRange()
    {
        open(u"shot.0004.exr"_s);
        m_session->setRange({2, 5, 2});
        QList<int> frames;
        connect(m_session.get(), &ViewerSession::frameChanged, this,
                [&frames](int frame) { frames += frame; });
        m_session->playback().setFramesPerSecond(500);
        m_session->togglePlaying();
        QTRY_VERIFY(frames.size() >= 4);
        m_session->setHeld(true); // a step that was on its way is not taken either
        const int held = m_session->frame();
        QSignalSpy steps(&m_session->playback(), &Playback::stepDue);
        QTRY_VERIFY(steps.count() > 2);
        QCOMPARE(m_session->frame(), held);
        m_session->setHeld(false);
        QTRY_VERIFY(m_session->frame() != held);
        QCOMPARE(frames.first(4), (QList<int>{5, 2, 4, 5}));
        m_session->togglePlaying();
        QVERIFY(!m_session->playback().isPlaying());
        open(u"shot.0001.exr"_s); // the run round it is the path that is shown
        m_session->setRange({1, 5, 1});
        m_session->togglePlaying();
        open(u"none.exr"_s);
        QVERIFY(!m_session->playback().isPlaying());
    }

    void typedRanges()
    {
        FrameSequence sequence;
        sequence.frames = {10, 13, 20};
        sequence.byFrame = 3;
        // What is typed, what the fields get, null where they stay, and the range.
        const std::tuple<QStringList, QStringList, PlaybackRange> edits[] = {
            {{u"10"_s, u"20"_s, u"2"_s}, {{}, {}, {}}, {10, 20, 2}},
            {{u"9"_s, u"21"_s, u"11"_s}, {u"10"_s, u"20"_s, {}}, {10, 20, 11}},
            {{u"21"_s, u"20"_s, u"12"_s}, {u"20"_s, {}, u"3"_s}, {20, 20, 3}},
            {{u"15"_s, u"14"_s, u"0"_s}, {{}, u"20"_s, u"3"_s}, {15, 15, 3}},
            {{u"x"_s, u"99999999999"_s, u"-1"_s}, {u"10"_s, u"20"_s, u"3"_s}, {10, 10, 3}},
        };
        for (const auto &[typed, written, range] : edits) {
            const RangeEdit edit = correctedRange(sequence, typed[0], typed[1], typed[2]);
            QCOMPARE((QStringList{edit.start, edit.end, edit.step}), written);
            QCOMPARE(edit.range, range);
        }
    }

    void looksAgainForFramesThatAreMissingOrBroken()
    {
        QVERIFY(QFile::resize(file(5), 400));
        TJob job;
        job.setFrameRanges({{1, 6, 1}});
        m_session->setJob({job, {}, {}});
        open(u"shot.####.exr"_s);
        m_session->setFrame(6);
        QCOMPARE(m_session->lastLoad().outcome, LoadOutcome::NotFound);
        QVERIFY(!m_display.shown);
        // A renderer writes elsewhere and puts the whole file in its place.
        writeFrame(m_folder->filePath(u"other"_s), kFrame);
        QVERIFY(QFile::rename(m_folder->filePath(u"other"_s), file(6)));
        QTRY_COMPARE(shownFile(), file(6));

        m_session->setFrame(5);
        QCOMPARE(m_session->lastLoad().outcome, LoadOutcome::Corrupted);
        writeFrame(file(5), kFrame); // in place
        QTRY_COMPARE(shownFile(), file(5));

        QVERIFY(QDir(m_folder->path()).removeRecursively());
        m_session->reload();
        QCOMPARE(m_session->lastLoad().outcome, LoadOutcome::NotFound);
        QCOMPARE(m_totals.videoMemoryUsed, 0U);
        QVERIFY(QDir().mkpath(m_folder->path()));
        writeFrame(file(5), {32, 16});
        QTRY_COMPARE(shownFile(), file(5));
        QCOMPARE(m_display.shown->planeSizes.front(), (PlaneSize{32, 16}));
    }

    /// Two of three chunks and the beginning of the third: they show, until the file is whole or the switch is off.
    void followsFramesInTheMaking()
    {
        constexpr QSize kThreeChunks(16, 48);
        for (const int frame : {4, 5})
            writeFrame(file(frame), kThreeChunks);
        QFile whole(file(5));
        QVERIFY(whole.open(QIODevice::ReadWrite));
        const QByteArray bytes = whole.readAll();
        QVERIFY(whole.resize(bytes.size() - 10));
        open(u"shot.####.exr"_s);
        const auto comeTo5 = [this] {
            m_session->setFrame(4);
            m_session->setFrame(5);
            return m_session->lastLoad();
        };
        const QList<QByteArray> planes = (m_session->setFrame(4), m_display.uploaded);
        for (int round = 0; round < 2; ++round) {
            const LoadResult load = comeTo5();
            QVERIFY(load.shown() && load.partial.sound() == 2 && load.partial.percentWritten() == 66);
            QCOMPARE(m_session->states().worst(4, 5), FrameState::InTheMaking);
            const std::vector<FarmHelpers::PartialLoad::Box> unread{{0, 32, 16, 16}};
            QVERIFY(m_display.shown->partial.unread == unread);
        }
        QVERIFY(whole.seek(bytes.size() - 10) && whole.write(bytes.last(10)) == 10 && whole.flush());
        QTRY_VERIFY(!m_session->lastLoad().partial.isIncomplete());
        QVERIFY(m_session->lastLoad().shown() && m_display.uploaded == planes);
        QCOMPARE(m_session->states().worst(4, 5), FrameState::Whole);

        QVERIFY(whole.seek(bytes.size() - 10) && whole.write("\x55") == 1 && whole.flush());
        const LoadResult load = comeTo5();
        QVERIFY(load.shown() && load.partial.damaged == 1 && !load.partial.isInTheMaking());
        QCOMPARE(m_session->states().worst(4, 5), FrameState::Broken);
        m_session->setShowIncomplete(false);
        QCOMPARE(m_session->lastLoad().outcome, LoadOutcome::Corrupted);
        QVERIFY(!m_display.shown);
    }

    void filesThatOthersWriteAreSeenWithoutAWord()
    {
        // The system tells of nothing behind a link, as of nothing that another machine writes.
        const QTemporaryDir store;
        const QString elsewhere = store.filePath(u"frame.exr"_s);
        QVERIFY(QFile::remove(file(4)) && QFile::link(elsewhere, file(4)));
        TJob job;
        job.setFrameRanges({{1, 5, 1}});
        m_session->setJob({job, {}, {}});
        open(u"shot.####.exr"_s);
        m_session->setFrame(4);
        QCOMPARE(m_session->lastLoad().outcome, LoadOutcome::NotFound);
        writeFrame(elsewhere, kFrame);
        QTRY_COMPARE(shownFile(), file(4));

        // Rendered anew, it shows when it comes up again; the others are not read a second time.
        m_session->setFrame(5);
        const int uploads = m_display.uploads;
        writeFrame(elsewhere, {32, 16});
        m_session->setFrame(4);
        QCOMPARE(m_display.shown->planeSizes.front(), (PlaneSize{32, 16}));
        m_session->setFrame(5);
        QCOMPARE(m_display.uploads, uploads + 1);

        // A broken file is read again when it has changed, not when its folder has.
        m_session->setFrame(2);
        m_session->setFrame(5);
        QVERIFY(QFile::resize(file(2), 300));
        m_session->setFrame(2);
        QVERIFY(!m_session->cache().find(file(2).toStdString())); // nor does a strip show it
        QCOMPARE(m_session->lastLoad().outcome, LoadOutcome::Corrupted);
        const QSignalSpy loads(m_session.get(), &ViewerSession::loaded);
        QFileSystemWatcher folder({m_folder->path()});
        QSignalSpy changes(&folder, &QFileSystemWatcher::directoryChanged);
        QTimer settled;
        settled.setInterval(300);
        for (int i = 0; i < 3; ++i) {
            writeFrame(m_folder->filePath(u"other%1"_s.arg(i)), kFrame);
            QTRY_COMPARE(changes.size(), i + 1);
            QSignalSpy due(&settled, &QTimer::timeout); // what a change sets off comes within 100 ms
            settled.start();
            QTRY_VERIFY(!due.isEmpty());
        }
        QCOMPARE(loads.count(), 0);
    }

    void aMaskWaitsForItsFrames()
    {
        const QString mask = m_folder->filePath(u"new/beauty.####.exr"_s);
        const auto newFile = [this](int frame) {
            return m_folder->filePath(u"new/beauty.%1.exr"_s.arg(frame));
        };
        open(u"new/beauty.####.exr"_s);
        m_session->reload();
        QCOMPARE(QString::fromStdString(m_session->file()), mask);
        QVERIFY(QDir(m_folder->path()).mkdir(u"new"_s));
        writeFrame(newFile(1001), kFrame);
        QTRY_COMPARE(shownFile(), newFile(1001));
        writeFrame(newFile(1002), kFrame);
        writeFrame(newFile(1004), kFrame);
        m_session->reload();
        QCOMPARE(m_session->sequence().frames, (std::set<long>{1001, 1002, 1004}));
        m_session->setRange({1002, 1004, 1});
        QVERIFY(QFile::remove(newFile(1001)));
        writeFrame(newFile(1006), kFrame);
        m_session->reload();
        QCOMPARE(m_session->sequence().frames, (std::set<long>{1001, 1002, 1004, 1006}));
        QCOMPARE(m_session->range(), (PlaybackRange{1002, 1006, 1}));
        QCOMPARE(m_session->frame(), 1002);
        QCOMPARE(QString::fromStdString(m_session->sequence().framesPath), mask);
    }

    void framesComeAndGoWhilePlaying()
    {
        m_totals.videoMemoryBudget = m_totals.mainMemoryBudget = 0; // so that files are read again and again
        open(u"shot.0001.exr"_s);
        m_session->playback().setFramesPerSecond(1000);
        m_session->togglePlaying();
        for (int round = 0; round < 20; ++round) {
            const QString changed = file(1 + round % 5);
            QVERIFY(round % 2 == 0 ? QFile::remove(changed) : QFile::resize(changed, 300 + 20 * round));
            QSignalSpy loads(m_session.get(), &ViewerSession::loaded);
            QTRY_VERIFY(loads.count() >= 5); // once round
            writeFrame(changed, kFrame * (1 + round % 3));
        }
        m_session->togglePlaying();
        m_session->reload();
        QVERIFY(m_session->lastLoad().shown());
    }

    void layers()
    {
        writeFrame(file(2), kFrame, {{"R", 1.0F}, {"G", 1.0F}, {"B", 1.0F}});
        writeFrame(file(3), kFrame, {{"Z", 1.0F}});
        open(u"shot.0001.exr"_s);
        QVERIFY(!m_session->setLayer("Z"));
        const int uploads = m_display.uploads;
        QVERIFY(m_session->setLayer("RGBA"));
        QCOMPARE(m_display.uploads, uploads + 1);
        // Each frame has its own, also from the cache, and the choice outlives those that lack it.
        for (int round = 0; round < 2; ++round) {
            for (const auto &[frame, entry] : {std::pair(2, "RGB"), {3, "Z"}, {4, "RGBA"}}) {
                m_session->setFrame(frame);
                QCOMPARE(m_session->lastLoad().decoded, round == 0);
                QCOMPARE(m_session->layers().entries, std::vector<std::string>{entry});
                QCOMPARE(m_session->layer(), entry);
                QCOMPARE(m_session->chosenLayer(), "RGBA");
                QCOMPARE(m_session->layers().offers("RGBA"), frame != 3);
            }
        }
        m_session->reload();
        QCOMPARE(m_session->chosenLayer(), "RGBA");
        open(u"none.exr"_s);
        QVERIFY(m_session->layers().entries.empty());
    }

    void lowerBudgets()
    {
        open(u"shot.0001.exr"_s);
        const std::uint64_t bytes = m_totals.videoMemoryUsed;
        m_totals.videoMemoryBudget = 2 * bytes;
        for (int frame = 2; frame <= 5; ++frame)
            m_session->setFrame(frame);
        QCOMPARE(m_totals.mainMemoryUsed, 3 * bytes);
        m_session->setFrame(1);
        m_totals.videoMemoryBudget = m_totals.mainMemoryBudget = bytes;
        QSignalSpy trimmed(m_session.get(), &ViewerSession::cacheTrimmed);
        m_session->applyBudgets();
        QCOMPARE(trimmed.count(), 1);
        QCOMPARE(m_totals.videoMemoryUsed, bytes);
        QCOMPARE(m_totals.mainMemoryUsed, bytes);
        m_totals.videoMemoryBudget = 0;
        m_session->applyBudgets();
        QCOMPARE(shownFile(), file(1)); // what is looked at stays
    }

private:
    void open(const QString &name)
    {
        m_session->open({.path = m_folder->filePath(name).toStdString(), .maskIsSequence = true});
    }
    QString file(int frame) const
    {
        return m_folder->filePath(u"shot.%1.exr"_s.arg(frame, 4, 10, QLatin1Char('0')));
    }
    /// Empty when nothing is on the display.
    QString shownFile() const
    {
        return m_display.shown ? QString::fromStdString(m_display.shown->filePath) : QString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    CacheTotals m_totals;
    FakeDisplay m_display;
    std::unique_ptr<ViewerSession> m_session;
};

QTEST_GUILESS_MAIN(ViewerSessionTest)
#include "tst_viewersession.moc"
