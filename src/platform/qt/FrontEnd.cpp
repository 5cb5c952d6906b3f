#include "platform/qt/FrontEnd.h"

#include <QApplication>
#include <QMessageBox>

#include "app/Aplicatie.h"
#include "platform/qt/QtPrinter.h"
#include "platform/qt/QtServices.h"
#include "platform/qt/ScreenWindows.h"

namespace fisc {

int RunWindow(int argc, char** argv, const WindowOptions& options) {
  QApplication qt(argc, argv);
  // The program ends when its main window closes, and only then: the other
  // windows come and go while it runs.
  QApplication::setQuitOnLastWindowClosed(false);

  Files files(options.workdir);
  QtDialogs dialogs;
  Clock clock;
  QtLauncher launcher(files);
  Drive drive(options.drive);
  QtPrinter printer;
  Platforma platforma{files, dialogs, clock, launcher, drive, printer};
  Aplicatie app(platforma);

  int status = 0;
  // The run-time report ends the program at once, without the exchange of
  // files that closing the main window does.
  app.Ecran().OnFatal = [&status](const RuntimeFailure& failure) {
    ShowFatal(failure.number(), failure.description());
    status = 1;
  };
  if (!app.Porneste()) return 0;
  if (app.Ecran().Ended()) return status;

  ScreenWindows windows(app.Ecran());
  windows.OnEnded = [&status] { QApplication::exit(status); };
  windows.Redraw();
  return QApplication::exec();
}

void ShowStartProblem(int argc, char** argv, const std::string& text) {
  QApplication qt(argc, argv);
  QMessageBox::critical(nullptr, QStringLiteral("fisc"), QString::fromLocal8Bit(text));
}

}  // namespace fisc
