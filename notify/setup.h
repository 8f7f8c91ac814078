#pragma once

class Alertor;

/// Brings the main window and the one that sets up its connection together.
namespace Setup {

/// Opens the window where nothing is configured, unless the user has put it off before. It blocks nothing.
void offer(Alertor &alertor);
/// Opens the window with the connection in use, or raises the one that is open.
void open(Alertor &alertor);
/// Shows the box about the program, which leads there too.
void openAbout(Alertor &alertor);

} // namespace Setup
