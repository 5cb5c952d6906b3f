#include "replay/Replay.h"

#include <fstream>
#include <iostream>
#include <sstream>

#include "replay/HeadlessProgram.h"
#include "replay/ScriptLine.h"

namespace fisc {

namespace {

std::string KindWord(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label: return "label";
    case ControlKind::TextBox: return "textbox";
    case ControlKind::ComboBox: return "combobox";
    case ControlKind::ListBox: return "listbox";
    case ControlKind::CheckBox: return "checkbox";
    case ControlKind::OptionButton: return "option";
    case ControlKind::Button: return "button";
    case ControlKind::Frame: return "frame";
  }
  return "control";
}

const char* Bool(bool b) { return b ? "true" : "false"; }

bool HasCaption(ControlKind k) {
  return k == ControlKind::Label || k == ControlKind::Frame || k == ControlKind::Button ||
         k == ControlKind::CheckBox || k == ControlKind::OptionButton;
}

class Driver {
 public:
  Driver(const ReplayOptions& options, std::ostream& out)
      : out_(out), program_(options.workdir, options.drive, options.pdfPrinter) {
    auto report = [this](const std::string& line) { out_ << line << '\n'; };
    dialogs_.Report = report;
    launcher_.Report = report;
    printer_.Report = report;
    app_.Ecran().OnFatal = [this](const RuntimeFailure& f) {
      out_ << "fatal " << f.number() << ' ' << Quote(f.description()) << '\n';
    };
  }

  int Run(std::istream& script) {
    if (!app_.Porneste()) return 0;
    if (Desk().Fatal()) return 3;
    std::string line;
    int number = 0;
    while (std::getline(script, line)) {
      ++number;
      if (!line.empty() && line.back() == '\r') line.pop_back();
      std::size_t first = line.find_first_not_of(" \t");
      if (first == std::string::npos || line[first] == '#') continue;
      int status;
      try {
        status = Execute(line.substr(first));
      } catch (const std::logic_error&) {  // a number that doesn't parse
        throw ScriptError("line " + std::to_string(number) + ": bad number");
      } catch (const ScriptError& e) {
        throw ScriptError("line " + std::to_string(number) + ": " + e.what());
      }
      if (status != 0) return status;
      if (Desk().Fatal()) return 3;
      if (Desk().Ended()) return 0;
    }
    // The end of the script is the end of the run: the main window closes.
    Desk().UserClose(app_.intro);
    return Desk().Fatal() ? 3 : 0;
  }

 private:
  Desktop& Desk() { return app_.Ecran(); }

  Form& FindForm(const std::string& name) {
    Form* f = Desk().FindForm(name);
    if (!f) throw ScriptError("unknown form " + name);
    return *f;
  }

  Control& FindControl(const ControlRef& ref) {
    Form& f = FindForm(ref.form);
    Control* c = f.Find(ref.name, ref.index);
    if (!c)
      throw ScriptError("unknown control " + ref.form + "." + ref.name +
                        (ref.index >= 0 ? "(" + std::to_string(ref.index) + ")" : ""));
    return *c;
  }

  Control& ControlArg(const std::vector<Token>& t, std::size_t i) {
    if (t.size() <= i || t[i].quoted) throw ScriptError("a control is missing");
    return FindControl(ParseRef(t[i].text, false));
  }

  static const std::string& StringArg(const std::vector<Token>& t, std::size_t i) {
    if (t.size() <= i || !t[i].quoted) throw ScriptError("a string is missing");
    return t[i].text;
  }

  static void Arity(const std::vector<Token>& t, std::size_t n) {
    if (t.size() != n) throw ScriptError("wrong number of arguments");
  }

  // A key by its name, or a single character for the key that types it.
  void Key(const std::string& name) {
    if (name == "tab") return Desk().UserTab();
    if (name == "backtab") return Desk().UserBackTab();
    if (name == "up") return Desk().UserArrow(-1);
    if (name == "down") return Desk().UserArrow(1);
    if (name == "left" || name == "right") return;  // only the caret moves
    int code = name == "enter"       ? kKeyEnter
               : name == "space"     ? kKeySpace
               : name == "escape"    ? kKeyEscape
               : name == "backspace" ? kKeyBackspace
               : name.size() == 1    ? static_cast<unsigned char>(name[0])
                                     : -1;
    if (code < 0) throw ScriptError("unknown key " + name);
    Desk().UserKey(code);
  }

  int Execute(const std::string& line) {
    std::vector<Token> t = Tokenize(line);
    const std::string& cmd = t[0].text;
    if (cmd == "click") {
      Arity(t, 2);
      Desk().UserClick(ControlArg(t, 1));
    } else if (cmd == "focus") {
      Arity(t, 2);
      Desk().UserFocus(ControlArg(t, 1));
    } else if (cmd == "type") {
      Arity(t, 2);
      if (!Desk().UserType(StringArg(t, 1))) throw ScriptError("the focused control takes no text");
    } else if (cmd == "key") {
      Arity(t, 2);
      Key(t[1].text);
    } else if (cmd == "select") {
      Arity(t, 3);
      Control& list = ControlArg(t, 1);
      int index = -1;
      if (t[2].quoted) {
        const auto& items = list.Items();
        for (std::size_t i = 0; i < items.size() && index < 0; ++i)
          if (items[i] == t[2].text) index = static_cast<int>(i);
        if (index < 0) index = list.FindItem(t[2].text);
      } else {
        index = std::stoi(t[2].text);
      }
      if (index < 0 || index >= list.ListCount()) throw ScriptError("no such entry in the list");
      Desk().UserSelect(list, index);
    } else if (cmd == "close") {
      Arity(t, 2);
      Desk().UserClose(FindForm(t[1].text));
    } else if (cmd == "answer") {
      if (t.size() < 2) throw ScriptError("answer what?");
      for (std::size_t i = 1; i < t.size(); ++i) {
        const std::string& a = t[i].text;
        if (a == "yes")
          dialogs_.QueueAnswer(Answer::Yes);
        else if (a == "no")
          dialogs_.QueueAnswer(Answer::No);
        else if (a == "ok")
          dialogs_.QueueAnswer(Answer::Ok);
        else if (a == "cancel")
          dialogs_.QueueAnswer(Answer::Cancel);
        else
          throw ScriptError("unknown answer " + a);
      }
    } else if (cmd == "print") {
      if (t.size() == 2 && t[1].text == "cancel" && !t[1].quoted)
        printer_.QueueCancel();
      else if (t.size() == 2 && t[1].text == "ok" && !t[1].quoted)
        printer_.QueueOk();
      else if (t.size() == 3 && t[1].text == "ok" && !t[1].quoted)
        printer_.QueueOk(StringArg(t, 2));
      else
        throw ScriptError("print ok \"FILE.pdf\" or print cancel");
    } else if (cmd == "input") {
      Arity(t, 2);
      dialogs_.QueueInput(StringArg(t, 1));
    } else if (cmd == "expect") {
      return Expect(t, line);
    } else if (cmd == "dump") {
      Arity(t, 2);
      Dump(FindForm(t[1].text));
    } else if (cmd == "end") {
      Arity(t, 1);
      Desk().UserClose(app_.intro);
    } else {
      throw ScriptError("unknown command " + cmd);
    }
    return 0;
  }

  std::string Property(const ControlRef& ref) {
    if (ref.name.empty()) {
      Form& f = FindForm(ref.form);
      if (ref.property == "caption") return f.Caption();
      if (ref.property == "visible") return Bool(f.Visible());
      throw ScriptError("unknown property of a form: " + ref.property);
    }
    Control& c = FindControl(ref);
    const std::string& p = ref.property;
    if (p == "text") return HasCaption(c.Kind()) ? c.Caption() : c.Text();
    if (p == "caption") return c.Caption();
    if (p == "checked") return std::to_string(c.Value());
    if (p == "enabled") return Bool(c.Enabled());
    if (p == "visible") return Bool(c.Visible());
    if (p == "tooltip") return c.ToolTip();
    if (p == "listcount") return std::to_string(c.ListCount());
    if (p == "listindex") return std::to_string(c.ListIndex());
    if (p.rfind("item(", 0) == 0 && p.back() == ')')
      return c.Item(std::stoi(p.substr(5, p.size() - 6)));
    throw ScriptError("unknown property " + p);
  }

  static std::string RefText(const Control& c) { return c.Owner().Name() + "." + c.FullName(); }

  int Expect(const std::vector<Token>& t, const std::string& line) {
    std::string expected, found;
    if (t.size() == 3 && t[1].text == "focus" && !t[1].quoted) {
      expected = RefText(ControlArg(t, 2));
      Control* f = Desk().Focused();
      found = f ? RefText(*f) : "none";
    } else {
      Arity(t, 3);
      if (t[1].quoted) throw ScriptError("expect what?");
      expected = StringArg(t, 2);
      found = Property(ParseRef(t[1].text, true));
    }
    if (expected == found) return 0;
    out_ << "fail " << line << ": expected " << Quote(expected) << ", found " << Quote(found)
         << '\n';
    return 1;
  }

  void Dump(Form& form) {
    out_ << form.Name() << " caption=" << Quote(form.Caption())
         << " visible=" << Bool(form.Visible()) << '\n';
    for (const Control& c : form.Controls()) {
      out_ << "  " << RefText(c) << ' ' << KindWord(c.Kind());
      if (HasCaption(c.Kind())) out_ << " caption=" << Quote(c.Caption());
      if (c.Kind() == ControlKind::TextBox || c.Kind() == ControlKind::ComboBox)
        out_ << " text=" << Quote(c.Text());
      if (c.Kind() == ControlKind::CheckBox || c.Kind() == ControlKind::OptionButton)
        out_ << " checked=" << c.Value();
      if (c.Kind() == ControlKind::ComboBox || c.Kind() == ControlKind::ListBox)
        out_ << " listindex=" << c.ListIndex() << " listcount=" << c.ListCount();
      out_ << " enabled=" << Bool(c.Enabled()) << " visible=" << Bool(c.Visible());
      if (!c.ToolTip().empty()) out_ << " tooltip=" << Quote(c.ToolTip());
      if (Desk().Focused() == &c) out_ << " focus";
      out_ << '\n';
    }
  }

  std::ostream& out_;
  HeadlessProgram program_;
  HeadlessDialogs& dialogs_ = program_.dialogs;
  HeadlessLauncher& launcher_ = program_.launcher;
  HeadlessPrinter& printer_ = program_.printer;
  Aplicatie& app_ = program_.app;
};

}  // namespace

int RunReplay(const ReplayOptions& options, std::ostream& out, std::ostream& err) {
  std::ifstream script(options.script, std::ios::binary);
  if (!script) {
    err << "fisc: can't read the script " << options.script << '\n';
    return 2;
  }
  try {
    Driver driver(options, out);
    return driver.Run(script);
  } catch (const ScriptError& e) {
    err << "fisc: script " << options.script.string() << ": " << e.what() << '\n';
    return 2;
  } catch (const UnansweredBox& e) {
    err << "fisc: script " << options.script.string() << ": " << e.what() << '\n';
    return 2;
  }
}

}  // namespace fisc
