#include "replay/VerifyCommand.h"

#include <iostream>
#include <string>

#include "replay/HeadlessProgram.h"

namespace fisc {

namespace {

// A box's text as lines of a terminal.
std::string Linii(std::string_view text) {
  std::string s;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    s += text[i];
  }
  return s;
}

class RulareVerificare {
 public:
  explicit RulareVerificare(const VerifyOptions& o) : program_(o.workdir, o.drive) {}

  int Run(const VerifyOptions& o, std::ostream& out, std::ostream& err) {
    if (!app_.Porneste()) {
      err << "fisc: another instance works in " << o.workdir << '\n';
      return 3;
    }
    Desktop& d = app_.Ecran();
    VerifFis& v = app_.verifFis;

    std::size_t boxes = dialogs_.History().size();
    d.UserClick(app_.intro.Command9);
    if (d.Fatal()) return Fatal(err);
    if (!v.Visible()) return Abandoned(boxes, err);  // the date setting refused it

    d.UserClick(*v.Option1[o.dbf ? 0 : 1]);
    d.UserClick(*v.Option2[o.fromDrive ? 1 : 0]);
    if (o.dbf || o.fromDrive) dialogs_.QueueAnswer(Answer::Yes);
    boxes = dialogs_.History().size();
    d.UserClick(v.Command1);
    if (d.Fatal()) return Fatal(err);
    // An intake that went well is what enables "Lista erori".
    if (!v.Command2.Enabled()) return Abandoned(boxes, err);

    d.UserClick(v.Command2);
    if (d.Fatal()) return Fatal(err);
    if (!v.UltimaVerificare()) return ConverterComplained(err);
    RezultatVerificare r = *v.UltimaVerificare();

    d.UserClose(app_.intro);
    if (d.Fatal()) return Fatal(err);
    out << "erori.txt sections 1-6:";
    for (long n : r.LiniiSectiune) out << ' ' << n;
    out << " lines; ";
    if (r.ExistaErori)
      out << "errors, kept in " << r.NumeCopie << '\n';
    else
      out << "no errors\n";
    return r.ExistaErori ? 1 : 0;
  }

 private:
  // The end of the run as the clerk ends it, closing the main window.
  void End() { app_.Ecran().UserClose(app_.intro); }

  int Fatal(std::ostream& err) {
    const RuntimeFailure& f = *app_.Ecran().Fatal();
    err << "fisc: run-time error " << f.number() << ": " << f.description() << '\n';
    return 3;
  }

  int Abandoned(std::size_t from, std::ostream& err) {
    const auto& shown = dialogs_.History();
    for (std::size_t i = from; i < shown.size(); ++i)
      if (shown[i].buttons == Buttons::Ok) err << Linii(shown[i].text) << '\n';
    End();
    return app_.Ecran().Fatal() ? Fatal(err) : 2;
  }

  int ConverterComplained(std::ostream& err) {
    LineReader ferr = files_.Read("ferr.txt");
    std::string line;
    while (ferr.Next(line)) err << line << '\n';
    End();
    return app_.Ecran().Fatal() ? Fatal(err) : 2;
  }

  HeadlessProgram program_;
  Files& files_ = program_.files;
  HeadlessDialogs& dialogs_ = program_.dialogs;
  Aplicatie& app_ = program_.app;
};

}  // namespace

int RunVerify(const VerifyOptions& options, std::ostream& out, std::ostream& err) {
  try {
    RulareVerificare run(options);
    return run.Run(options, out, err);
  } catch (const std::exception& e) {
    // A question nobody answers, a failure outside any screen's action.
    err << "fisc: " << e.what() << '\n';
    return 3;
  }
}

}  // namespace fisc
