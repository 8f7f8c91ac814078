#pragma once

#include <QtCore/QString>

#include <functional>

class QWidget;

/// Opens the program's windows, menus and boxes one after another, as a user has them open, and hands each over while it
/// is on the screen.
class WindowBook {
public:
    using Visit = std::function<void(const QString &name, QWidget &window)>;

    explicit WindowBook(Visit visit)
        : m_visit(std::move(visit))
    { }

    void visitAll();

private:
    void visitEvents();
    void visitPreferences();
    void visitBoxes();
    void visitViewers();
    void visitPages(const QString &name, QWidget &window);
    void show(const QString &name, QWidget &window);

    Visit m_visit;
};
