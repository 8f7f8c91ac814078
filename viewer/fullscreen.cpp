#include "fullscreen.h"

#include "ui_imageviewer.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QVBoxLayout>

#include <utility>

namespace {

constexpr int kWarningPlace = 2; // behind the container of the picture

}

FullScreen::FullScreen(const Ui::ImageViewerClass &form, QWidget &viewer)
    : QObject(&viewer)
    , m_form(form)
    , m_viewer(viewer)
{ }

void FullScreen::show()
{
    if (m_window)
        return;
    m_window = new QWidget(&m_viewer, Qt::Window);
    m_window->setObjectName(QStringLiteral("fullScreenWindow"));
    m_window->setWindowTitle(m_viewer.windowTitle());
    m_window->installEventFilter(&m_viewer);
    addKeys();
    auto *layout = new QVBoxLayout(m_window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_form.image);
    layout->addWidget(m_form.imageWarningWidget);
    m_window->showFullScreen();
    settle();
}

void FullScreen::end()
{
    QWidget *window = std::exchange(m_window, nullptr);
    if (!window)
        return;
    m_form.imageLayout->addWidget(m_form.image, 0, 0);
    m_form.pictureRow->insertWidget(kWarningPlace, m_form.imageWarningWidget);
    settle();
    window->deleteLater(); // its key may be what called
    window->hide();
}

void FullScreen::addKeys()
{
    for (QAbstractButton *button : m_form.imageContainer->parentWidget()->findChildren<QAbstractButton *>()) {
        if (!button->shortcut().isEmpty() && button != m_form.fullScreen)
            connect(new QShortcut(button->shortcut(), m_window), &QShortcut::activated, button,
                    &QAbstractButton::click);
    }
}

// A widget that moves to another window is hidden until it is shown again.
void FullScreen::settle()
{
    const bool failed = !m_form.imageWarningReason->text().isEmpty();
    m_form.image->setVisible(!failed);
    m_form.imageWarningWidget->setVisible(failed);
    QWidget *keyboard = failed ? m_form.imageWarningWidget->parentWidget() : m_form.image;
    keyboard->activateWindow();
    keyboard->setFocus();
}
