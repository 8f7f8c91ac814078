#include "messages.h"

#include <ui/logfile.h>
#include <ui/product.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtWidgets/QMessageBox>

void Messages::showError(QWidget *parent, const QString &text)
{
    QMessageBox box(QMessageBox::Critical, product::kProductTitle, text, QMessageBox::Ok, parent);
    // Paths come from the farm: they are no markup.
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Ok);
    box.exec();
}

void Messages::showAbout(QWidget *parent)
{
    const QString text =
        QCoreApplication::translate("Messages", "Tarrow Alertor %1 (build %2)\n\nLog: %3")
            .arg(product::kVersion, product::kBuildNumber, QDir::toNativeSeparators(LogFile::path()));
    QMessageBox box(QMessageBox::Information, product::kProductTitle, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

bool Messages::askToQuit(QWidget *parent)
{
    const QString question =
        QCoreApplication::translate("Messages", "Are you sure you want to close the Alertor?");
    return QMessageBox::question(parent, product::kProductTitle, question) == QMessageBox::Yes;
}

QDialog *Messages::openRefusal(QWidget *parent)
{
    const QString text = QCoreApplication::translate(
        "Messages",
        "Dispatcher denied Alertor connection. Please double check the login and password in the Alertor "
        "applet configuration dialog!");
    auto *box = new QMessageBox(QMessageBox::Warning, product::kProductTitle, text, QMessageBox::Ok, parent);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::ApplicationModal);
    box->show();
    return box;
}
