#include "messages.h"

#include <ui/logfile.h>
#include <ui/product.h>
#include <ui/windowplacement.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace {

/// A box with one answer. Its text may hold what a farm or a file says: it is no markup.
class PlainBox final : public QMessageBox {
public:
    PlainBox(Icon icon, const QString &text, QWidget *parent)
        : QMessageBox(icon, product::kProductTitle, text, Ok, shownParent(parent))
    {
        setTextFormat(Qt::PlainText);
        setDefaultButton(Ok);
    }
};

} // namespace

void Messages::showError(QWidget *parent, const QString &text)
{
    PlainBox(QMessageBox::Critical, text, parent).exec();
}

bool Messages::showAbout(QWidget *parent)
{
    const QString text =
        QCoreApplication::translate("Messages", "Tarrow Alertor %1 (build %2)\n\nLog: %3")
            .arg(product::kVersion, product::kBuildNumber, QDir::toNativeSeparators(LogFile::path()));
    PlainBox box(QMessageBox::Information, text, parent);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const auto *setUp = box.addButton(QCoreApplication::translate("Messages", "&Set up the connection…"),
                                      QMessageBox::ActionRole);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
    return box.clickedButton() == setUp;
}

bool Messages::askToQuit(QWidget *parent)
{
    const QString question =
        QCoreApplication::translate("Messages", "Are you sure you want to close the Alertor?");
    return QMessageBox::question(shownParent(parent), product::kProductTitle, question) == QMessageBox::Yes;
}

QDialog *Messages::openRefusal(QWidget *parent)
{
    const QString text = QCoreApplication::translate(
        "Messages",
        "Dispatcher denied Alertor connection. Please double check the login and password in the Alertor "
        "applet configuration dialog!");
    auto *box = new PlainBox(QMessageBox::Warning, text, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::ApplicationModal);
    box->show();
    return box;
}
