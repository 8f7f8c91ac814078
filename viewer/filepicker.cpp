#include "filepicker.h"

#include <image_library/iimagecore.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QSettings>
#include <QtWidgets/QFileDialog>

namespace {

const QString kStateKey = QStringLiteral("fileSelectorsCaches/ImageViewer");

QString filters(TImageLibrary::IImageCore *library)
{
    QString text = QCoreApplication::translate("ImageViewer", "All files (*)");
    const auto end = library->LoaderExtensionsEnd();
    for (auto it = library->LoaderExtensionsBegin(); it != end; ++it) {
        const QString extension = QString::fromStdString(it.extension());
        text += QStringLiteral(";;%1 (*.%2)").arg(extension.toUpper(), extension);
    }
    return text;
}

} // namespace

QString pickImageFile(QWidget *parent, TImageLibrary::IImageCore *library, const std::string &shown)
{
    QSettings settings;
    const QPointer<QFileDialog> dialog =
        new QFileDialog(parent, QCoreApplication::translate("ImageViewer", "Select images"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(filters(library).split(QStringLiteral(";;")));
    dialog->restoreState(settings.value(kStateKey).toByteArray());
    const QFileInfo beside(QString::fromStdString(shown));
    if (!shown.empty() && beside.dir().exists())
        dialog->setDirectory(beside.absolutePath());
    const bool chosen = dialog->exec() == QDialog::Accepted && dialog;
    QString file;
    if (chosen) {
        file = dialog->selectedFiles().value(0);
        settings.setValue(kStateKey, dialog->saveState());
    }
    delete dialog;
    return file;
}
