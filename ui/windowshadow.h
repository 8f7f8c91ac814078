#pragma once

class QWidget;

/// Asks the platform for a drop shadow round a frameless window, where the window's class decides that. Call it when
/// the native window exists; elsewhere the compositor decides and this does nothing.
void addDropShadow(QWidget *window);
