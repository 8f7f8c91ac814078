#include "farmpackets.h"
#include "glpath.h"
#include "jobframes.h"
#include "modals.h"
#include "openviewers.h"

#include <app/splash.h>
#include <notify/alertor.h>
#include <notify/events/eventbuilder.h>
#include <notify/events/notifyevent.h>
#include <notify/eventsview.h>
#include <ui/product.h>
#include <ui/qskinnedmessagebox.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtGui/QClipboard>
#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocumentFragment>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

const QString kSaid = u"<b>mark7</b>"_s;

/// What a user reads of a text that the toolkit shows in this format.
QString read(const QString &text, Qt::TextFormat format)
{
    const bool isRich = format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
    return isRich ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

} // namespace

/// What the farm, files and templates say, in every window of the program.
class TestPlainText final : public QObject {
    Q_OBJECT

public:
    static void initMain()
    {
        chooseGlPath();
        QCoreApplication::setOrganizationName(product::kOrganisation);
        QCoreApplication::setApplicationName(product::kApplicationName);
        QApplication::setQuitOnLastWindowClosed(false);
    }

private Q_SLOTS:
    void nothingIsReadAsMarkup()
    {
        Alertor alertor;
        CommandLineOverrides overrides;
        overrides.user = kSaid;
        overrides.port = 1; // where nobody listens: the window tells so
        alertor.setCommandLineOverrides(overrides);
        alertor.loadSettings();
        alertor.checkLocalConnection();
        NotificationPacket packet = packetOf(kSaid + u' ' + kSaid.repeated(20));
        packet.message = packet.user = kSaid;
        alertor.handleNewEvent(buildEvent(packet, 1));
        EventsView *list = shown(alertor);
        list->selectAll();
        hover(*list);

        alertor.actOpenFrame();
        ImageViewer *viewer = openViewers().value(0);
        QVERIFY(viewer && viewer->isVisible());
        viewer->grab(); // paints the title, whose tooltip then tells the whole
        walk();
        viewer->close();

        whenModalOpens([this](QWidget *box) {
            walk();
            QTest::keyClick(box->focusWidget(), Qt::Key_Return);
        });
        alertor.actOpenOutput();
        whenModalOpens([this](QWidget *dialog) {
            walk();
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        alertor.configure();
        whenModalOpens([this](QWidget *box) {
            walk();
            box->close();
        });
        QSkinnedMessageBox::warning(&alertor, kSaid, kSaid, QMessageBox::Ok);
        Splash splash;
        splash.say(u"Loading template %1..."_s.arg(kSaid));
        check(splash, splash.message(), Qt::AutoText);

        for (const char *name :
             {"ImageViewer", "Splash", "imageWarningReason", "jobInfo", "linkState", "qt_msgbox_label",
              "qtooltip_label", "skinnedDialogHeaderLabel", "skinnedMessageBoxText", "treeWidget"})
            QVERIFY2(m_met.contains(QLatin1String(name)), name);
    }

    void longTextsAreCutAndCopiedWhole()
    {
        Alertor alertor;
        const QString tale = u"tale "_s.repeated(20'000);
        NotificationPacket packet = packetOf(tale);
        packet.message = packet.user = tale;
        alertor.handleNewEvent(buildEvent(packet, 1));
        EventsView *list = shown(alertor);
        for (int column = 0; column < EventsModel::ColumnCount; ++column) {
            for (int role = 0; role <= Qt::UserRole; ++role)
                QVERIFY(list->model()->index(0, column).data(role).toString().size() < 600);
        }
        const QModelIndex message = list->model()->index(0, EventsModel::Message);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(message).center());
        QTest::keySequence(list, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), tale);
        alertor.actOpenFrame();
        QVERIFY(openViewers().value(0)->windowTitle().size() < 600);
    }

    void layersAreChosenByTheirWholeNames()
    {
        const QString file = m_folder.filePath(u"layers.exr"_s);
        writeFrame(file, {8, 8}, {{"first\nchannel", 0.5F}, {"second", 1.0F}});
        Alertor alertor;
        alertor.openImageViewer();
        ImageViewer *viewer = openViewers().value(0);
        viewer->setFramesPath({.path = file.toStdString(), .force = true});
        auto *layers = viewer->findChild<QComboBox *>(u"layersSelector"_s);
        QCOMPARE(layers->currentText(), u"first…"_s);
        QTest::keyClick(layers, Qt::Key_Down);
        QCOMPARE(viewer->session().layer(), "second");
        QTest::keyClick(layers, Qt::Key_Up);
        QCOMPARE(viewer->session().layer(), "first\nchannel");
    }

private:
    /// Of a job of this name, with frames that are missing below a folder whose name looks like markup.
    NotificationPacket packetOf(const QString &jobName) const
    {
        TClientLib::TJob job = farm::job();
        job.setName(jobName.toStdString());
        job.setFrameRanges({{1, 2, 1}});
        job.attributeSetString("frames_mask", m_folder.filePath(kSaid + u"/a.####.exr"_s).toStdString());
        return farm::notification(1, &job);
    }

    static EventsView *shown(Alertor &alertor)
    {
        alertor.show();
        if (!QTest::qWaitForWindowActive(&alertor))
            qFatal("the window does not show");
        return alertor.findChild<EventsView *>(u"treeWidget"_s);
    }

    static void hover(EventsView &list)
    {
        const QPoint at = list.visualRect(list.model()->index(0, EventsModel::Message)).center();
        QHelpEvent rest(QEvent::ToolTip, at, list.viewport()->mapToGlobal(at));
        QApplication::sendEvent(list.viewport(), &rest);
    }

    void check(const QObject &place, const QString &text, Qt::TextFormat format)
    {
        if (!text.contains(u"mark7"_s))
            return;
        const QString name = place.objectName();
        m_met += name.isEmpty() ? QString::fromLatin1(place.metaObject()->className()) : name;
        QVERIFY2(read(text, format).contains(kSaid), qPrintable(name + u": "_s + text));
    }

    void walk()
    {
        for (const QWidget *widget : QApplication::allWidgets()) {
            for (const QString &text : {widget->toolTip(), widget->statusTip(), widget->whatsThis()})
                check(*widget, text, Qt::AutoText);
            check(*widget, widget->windowTitle(), Qt::PlainText);
            if (const auto *label = qobject_cast<const QLabel *>(widget))
                check(*label, label->text(), label->textFormat());
            const auto *view = qobject_cast<const QAbstractItemView *>(widget);
            for (int i = 0; view && view->model() && i < view->model()->columnCount(); ++i)
                check(*view, view->model()->index(0, i).data(Qt::ToolTipRole).toString(), Qt::AutoText);
        }
    }

    QTemporaryDir m_folder;
    QSet<QString> m_met; // names of the widgets that showed something of it
};

QTEST_MAIN(TestPlainText)
#include "tst_plaintext.moc"
