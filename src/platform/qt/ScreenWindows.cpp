#include "platform/qt/ScreenWindows.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFont>
#include <QGroupBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <algorithm>

#include "platform/Desktop.h"
#include "platform/qt/Cp1250.h"

namespace fisc {

namespace {

// A form's window: closing it is a person's action like any other, and the
// model decides whether the window goes.
class FormWindow : public QWidget {
 public:
  std::function<bool()> MayClose;

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (MayClose && !MayClose())
      event->ignore();
    else
      event->accept();
  }
};

// The caption without its mnemonic marks, as a label without a buddy would
// otherwise show them: "&&" is one ampersand.
QString WithoutMnemonic(const QString& caption) {
  QString shown;
  shown.reserve(caption.size());
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == QLatin1Char('&') && i + 1 < caption.size()) ++i;
    shown += caption[i];
  }
  return shown;
}

// Captions of tall controls pad a line with a run of blanks, sized for the
// font they were made in, to push the next words onto the next line. Here
// such a run ends the line whatever the font, so the lines come out as meant.
constexpr qsizetype kLinePadding = 3;

bool IsPadding(const QString& text, qsizetype at, qsizetype run) {
  return run >= kLinePadding && at > 0 && at + run < text.size();
}

bool HasPadding(const QString& text) {
  QString inner = text.trimmed();
  return inner.contains(QString(kLinePadding, QLatin1Char(' ')));
}

// The text with its padding runs turned into line ends; `trim` also drops the
// blanks around each line, for captions drawn centred.
QString BreakAtPadding(const QString& text, bool trim) {
  QStringList lines;
  QString line;
  qsizetype first = 0;
  while (first < text.size() && text[first] == QLatin1Char(' ')) ++first;
  line = text.left(first);
  for (qsizetype i = first; i < text.size();) {
    qsizetype run = 0;
    while (i + run < text.size() && text[i + run] == QLatin1Char(' ')) ++run;
    if (run == 0) {
      line += text[i++];
      continue;
    }
    if (IsPadding(text, i, run)) {
      lines << line;
      line.clear();
    } else {
      line += text.mid(i, run);
    }
    i += run;
  }
  lines << line;
  if (trim)
    for (QString& l : lines) l = l.trimmed();
  return lines.join(QLatin1Char('\n'));
}

bool TakesText(const Control& c) {
  return c.Kind() == ControlKind::TextBox || c.Kind() == ControlKind::ComboBox;
}

// A label's mnemonic moves the focus to the control that follows it.
Control* FollowerOf(Control& label) {
  bool after = false;
  for (Control& c : label.Owner().Controls()) {
    if (&c == &label)
      after = true;
    else if (after && c.CanTakeFocus())
      return &c;
  }
  return nullptr;
}

class BusyScope {
 public:
  explicit BusyScope(bool& flag) : flag_(flag), was_(flag) { flag_ = true; }
  ~BusyScope() { flag_ = was_; }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  bool& flag_;
  bool was_;
};

}  // namespace

struct ScreenWindows::Bound {
  Control* control = nullptr;
  QWidget* widget = nullptr;
  // A button's caption too long for one line, drawn wrapped inside the button.
  QLabel* wrapped = nullptr;
  QShortcut* mnemonic = nullptr;
  // What was drawn last of the properties a person can't change in the widget.
  bool drawn = false;
  bool enabled = true;
  std::string caption, toolTip;
  QRect place;
  int maxLength = -1;
  bool itemsDrawn = false;
  std::vector<std::string> items;
};

struct ScreenWindows::Window {
  Form* form = nullptr;
  std::unique_ptr<FormWindow> widget;
  std::vector<std::unique_ptr<Bound>> controls;  // in the order of the form's controls
  std::string caption;
  bool captionDrawn = false;
  bool placed = false;
};

ScreenWindows::ScreenWindows(Desktop& desktop) : desktop_(desktop) {}

ScreenWindows::~ScreenWindows() {
  dying_ = true;
  windows_.clear();
}

QWidget* ScreenWindows::WindowOf(const Form& form) const {
  for (const auto& w : windows_)
    if (w->form == &form) return w->widget.get();
  return nullptr;
}

QWidget* ScreenWindows::WidgetOf(const Control& control) const {
  Bound* b = byControl_.value(&control);
  return b ? b->widget : nullptr;
}

void ScreenWindows::Watch(QObject* part, Bound& bound) {
  part->installEventFilter(this);
  byPart_.insert(part, &bound);
}

void ScreenWindows::SetUpEditor(Bound& bound) {
  auto* combo = static_cast<QComboBox*>(bound.widget);
  Control& c = *bound.control;
  combo->setEditable(!c.ListOnly());
  combo->setFocusPolicy(Qt::NoFocus);
  if (QLineEdit* editor = combo->lineEdit()) {
    // The list's text is the model's: no completion, no new entries.
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    Watch(editor, bound);
    connect(editor, &QLineEdit::textEdited, this, [this](const QString& text) {
      Forward([this, bytes = ToCp1250(text)] { desktop_.UserType(bytes); });
    });
  }
}

void ScreenWindows::Build(Window& window, Control& control) {
  auto bound = std::make_unique<Bound>();
  Bound& b = *bound;
  b.control = &control;
  QWidget* parent = window.widget.get();
  Control* c = &control;
  switch (control.Kind()) {
    case ControlKind::Label: {
      auto* label = new QLabel(parent);
      label->setTextFormat(Qt::PlainText);
      b.widget = label;
      break;
    }
    case ControlKind::TextBox: {
      auto* edit = new QLineEdit(parent);
      connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        Forward([this, bytes = ToCp1250(text)] { desktop_.UserType(bytes); });
      });
      b.widget = edit;
      break;
    }
    case ControlKind::ComboBox: {
      auto* combo = new QComboBox(parent);
      b.widget = combo;
      SetUpEditor(b);
      connect(combo, &QComboBox::activated, this, [this, c](int index) {
        Forward([this, c, index] { desktop_.UserSelect(*c, index); });
      });
      break;
    }
    case ControlKind::ListBox: {
      auto* list = new QListWidget(parent);
      list->setUniformItemSizes(true);
      list->setSelectionMode(QAbstractItemView::SingleSelection);
      Watch(list->viewport(), b);
      // The mouse is taken in the filter; this is the keyboard moving in the list.
      connect(list, &QListWidget::currentRowChanged, this, [this, c](int row) {
        if (row >= 0) Forward([this, c, row] { desktop_.UserSelect(*c, row); });
      });
      b.widget = list;
      break;
    }
    case ControlKind::CheckBox: b.widget = new QCheckBox(parent); break;
    case ControlKind::OptionButton: {
      auto* option = new QRadioButton(parent);
      // The model clears the other options of the group, not Qt.
      option->setAutoExclusive(false);
      b.widget = option;
      break;
    }
    case ControlKind::Button: {
      auto* button = new QPushButton(parent);
      button->setAutoDefault(false);
      b.widget = button;
      break;
    }
    case ControlKind::Frame: b.widget = new QGroupBox(parent); break;
  }
  if (auto* button = qobject_cast<QAbstractButton*>(b.widget))
    connect(button, &QAbstractButton::clicked, this,
            [this, c] { Forward([this, c] { desktop_.UserClick(*c); }); });
  // Qt never moves the focus by itself: a click or a key asks the model,
  // and the redraw puts the focus where the model says.
  b.widget->setFocusPolicy(Qt::NoFocus);
  if (auto* edit = qobject_cast<QLineEdit*>(b.widget); edit && control.AlignRight())
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  if (control.FontSize() > 0 || control.Bold()) {
    QFont font = b.widget->font();
    if (control.FontSize() > 0) font.setPointSize(control.FontSize());
    font.setBold(control.Bold());
    b.widget->setFont(font);
  }
  Watch(b.widget, b);
  byControl_.insert(&control, &b);
  window.controls.push_back(std::move(bound));
}

void ScreenWindows::BuildNew(Window& window) {
  auto& controls = window.form->Controls();
  std::size_t first = window.controls.size();
  if (first == controls.size()) return;
  for (std::size_t i = first; i < controls.size(); ++i) Build(window, controls[i]);
}

void ScreenWindows::DrawCaption(Bound& b) {
  Control& c = *b.control;
  QString caption = FromCp1250(c.Caption());
  switch (c.Kind()) {
    case ControlKind::Label: {
      auto* label = static_cast<QLabel*>(b.widget);
      QString shown = WithoutMnemonic(caption);
      QFontMetrics metrics = label->fontMetrics();
      bool lines = HasPadding(shown) && b.place.height() >= 2 * metrics.lineSpacing() + 6;
      bool wrap = lines || metrics.horizontalAdvance(shown) > b.place.width();
      label->setText(lines ? BreakAtPadding(shown, false) : shown);
      label->setWordWrap(wrap);
      Qt::Alignment side = c.AlignRight() ? Qt::AlignRight : Qt::AlignLeft;
      label->setAlignment(side | (wrap ? Qt::AlignTop : Qt::AlignVCenter));
      QKeySequence key = QKeySequence::mnemonic(caption);
      if (!key.isEmpty() && !b.mnemonic) {
        b.mnemonic = new QShortcut(label->window());
        connect(b.mnemonic, &QShortcut::activated, this, [this, &c] {
          if (Control* next = FollowerOf(c)) Forward([this, next] { desktop_.UserFocus(*next); });
        });
      }
      if (b.mnemonic) b.mnemonic->setKey(key);
      break;
    }
    case ControlKind::Button: {
      auto* button = static_cast<QPushButton*>(b.widget);
      QString shown = WithoutMnemonic(caption);
      QFontMetrics metrics = button->fontMetrics();
      // The margins of the button's frame and its padding.
      constexpr int kMargins = 12;
      bool lines =
          HasPadding(shown) && b.place.height() >= 2 * metrics.lineSpacing() + kMargins / 2;
      if (!lines && metrics.horizontalAdvance(shown) <= b.place.width() - kMargins) {
        button->setText(caption);
        if (b.wrapped) b.wrapped->hide();
        if (b.mnemonic) b.mnemonic->setKey({});
        break;
      }
      // Long captions full of blanks are meant to wrap inside a tall,
      // narrow button; a push button draws one line only.
      button->setText(QString());
      if (!b.wrapped) {
        b.wrapped = new QLabel(button);
        b.wrapped->setTextFormat(Qt::PlainText);
        b.wrapped->setWordWrap(true);
        b.wrapped->setAlignment(Qt::AlignCenter);
        b.wrapped->setAttribute(Qt::WA_TransparentForMouseEvents);
        b.mnemonic = new QShortcut(button);
        connect(b.mnemonic, &QShortcut::activated, button, &QAbstractButton::animateClick);
      }
      b.wrapped->setGeometry(QRect(QPoint(0, 0), b.place.size()).adjusted(4, 3, -4, -3));
      b.wrapped->setText(lines ? BreakAtPadding(shown, true) : shown);
      b.wrapped->show();
      b.mnemonic->setKey(QKeySequence::mnemonic(caption));
      break;
    }
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      static_cast<QAbstractButton*>(b.widget)->setText(caption);
      break;
    case ControlKind::Frame: static_cast<QGroupBox*>(b.widget)->setTitle(caption); break;
    default: break;
  }
}

void ScreenWindows::DrawItems(Bound& b) {
  Control& c = *b.control;
  const std::vector<std::string>& items = c.Items();
  // Lists can hold a hundred thousand entries: compare the bytes, rebuild
  // the widget only when they changed.
  if (b.itemsDrawn && b.items == items) return;
  QStringList shown;
  shown.reserve(static_cast<qsizetype>(items.size()));
  for (const std::string& item : items) shown << FromCp1250(item);
  if (auto* combo = qobject_cast<QComboBox*>(b.widget)) {
    combo->clear();
    combo->addItems(shown);
  } else if (auto* list = qobject_cast<QListWidget*>(b.widget)) {
    list->clear();
    list->addItems(shown);
  }
  b.items = items;
  b.itemsDrawn = true;
}

void ScreenWindows::Draw(Window& window, Bound& b) {
  Control& c = *b.control;
  QWidget* w = b.widget;
  QWidget* parent = c.Container() ? WidgetOf(*c.Container()) : window.widget.get();
  if (parent && w->parentWidget() != parent) {
    w->setParent(parent);
    b.drawn = false;  // a widget given a new parent is hidden
  }
  const Rect& r = c.Place();
  QRect place(r.x, r.y, r.w, r.h);
  bool moved = place != b.place;
  if (moved) {
    w->setGeometry(place);
    b.place = place;
  }
  if (!b.drawn || w->isHidden() == c.Visible()) w->setVisible(c.Visible());
  if (!b.drawn || b.enabled != c.Enabled()) {
    w->setEnabled(c.Enabled());
    b.enabled = c.Enabled();
  }
  if (!b.drawn || b.toolTip != c.ToolTip()) {
    w->setToolTip(FromCp1250(c.ToolTip()));
    b.toolTip = c.ToolTip();
  }
  if (!b.drawn || moved || b.caption != c.Caption()) {
    DrawCaption(b);
    b.caption = c.Caption();
  }
  switch (c.Kind()) {
    case ControlKind::TextBox: {
      auto* edit = static_cast<QLineEdit*>(w);
      // The keyboard stops at the maximum length; a longer text set by the
      // program is still shown whole.
      int length = c.MaxLength() > 0
                       ? std::max<int>(c.MaxLength(), static_cast<int>(c.Text().size()))
                       : 32767;
      if (length != b.maxLength) {
        edit->setMaxLength(length);
        b.maxLength = length;
      }
      QString text = FromCp1250(c.Text());
      if (edit->text() != text) edit->setText(text);
      break;
    }
    case ControlKind::ComboBox: {
      auto* combo = static_cast<QComboBox*>(w);
      if (combo->isEditable() == c.ListOnly()) SetUpEditor(b);
      DrawItems(b);
      if (combo->currentIndex() != c.ListIndex()) combo->setCurrentIndex(c.ListIndex());
      if (QLineEdit* editor = combo->lineEdit()) {
        if (c.MaxLength() > 0 && editor->maxLength() != c.MaxLength())
          editor->setMaxLength(c.MaxLength());
        QString text = FromCp1250(c.Text());
        if (editor->text() != text) editor->setText(text);
      }
      break;
    }
    case ControlKind::ListBox: {
      auto* list = static_cast<QListWidget*>(w);
      DrawItems(b);
      if (list->currentRow() != c.ListIndex()) {
        list->setCurrentRow(c.ListIndex());
        if (c.ListIndex() < 0) list->clearSelection();
      }
      break;
    }
    case ControlKind::CheckBox:
    case ControlKind::OptionButton: {
      auto* button = static_cast<QAbstractButton*>(w);
      if (button->isChecked() != (c.Value() != 0)) button->setChecked(c.Value() != 0);
      break;
    }
    default: break;
  }
  b.drawn = true;
}

void ScreenWindows::Redraw() {
  BusyScope busy(busy_);
  const auto& forms = desktop_.Forms();
  for (std::size_t i = windows_.size(); i < forms.size(); ++i) {
    auto window = std::make_unique<Window>();
    window->form = forms[i];
    window->widget = std::make_unique<FormWindow>();
    Form* form = forms[i];
    window->widget->MayClose = [this, form] {
      if (dying_ || desktop_.Ended()) return true;
      Forward([this, form] { desktop_.UserClose(*form); });
      return false;
    };
    windows_.push_back(std::move(window));
  }
  for (auto& window : windows_) {
    Form& form = *window->form;
    FormWindow& widget = *window->widget;
    BuildNew(*window);
    if (!window->captionDrawn || window->caption != form.Caption()) {
      widget.setWindowTitle(FromCp1250(form.Caption()));
      window->caption = form.Caption();
      window->captionDrawn = true;
    }
    if (widget.width() != form.Width() || widget.height() != form.Height())
      widget.setFixedSize(form.Width(), form.Height());
    // A hidden window is drawn when it is shown again, not at every key.
    if (!form.Visible() && !widget.isVisible()) continue;
    for (auto& bound : window->controls) Draw(*window, *bound);
  }
  // Show before hiding, so that the program never has no window at all.
  for (auto& window : windows_) {
    if (!window->form->Visible() || window->widget->isVisible()) continue;
    if (!window->placed) {
      if (QScreen* screen = QGuiApplication::primaryScreen()) {
        QRect room = screen->availableGeometry();
        window->widget->move(room.center() - window->widget->rect().center());
      }
      window->placed = true;
    }
    window->widget->show();
  }
  for (auto& window : windows_)
    if (!window->form->Visible() && window->widget->isVisible()) window->widget->hide();
  PlaceFocus();
}

void ScreenWindows::PlaceFocus() {
  Control* focused = desktop_.Focused();
  QWidget* target = focused ? WidgetOf(*focused) : nullptr;
  if (target && target->isVisible()) {
    QWidget* window = target->window();
    if (!window->isActiveWindow()) {
      window->raise();
      window->activateWindow();
    }
    if (window->focusWidget() != target || QApplication::focusWidget() != target)
      target->setFocus(Qt::OtherFocusReason);
    if (focused != lastFocus_ && focused->SelectOnEntry())
      if (auto* edit = qobject_cast<QLineEdit*>(target)) edit->selectAll();
  } else if (QWidget* current = QApplication::focusWidget(); current && byPart_.contains(current)) {
    current->clearFocus();
  }
  lastFocus_ = focused;
}

void ScreenWindows::Forward(const std::function<void()>& action) {
  if (busy_ || dying_ || desktop_.Ended()) return;
  {
    BusyScope busy(busy_);
    action();
  }
  if (desktop_.Ended()) {
    if (OnEnded) OnEnded();
    return;
  }
  Redraw();
}

bool ScreenWindows::KeyPress(Bound& b, QKeyEvent& key) {
  // Arrows and the like have no character: the widget moves its caret or
  // its list, and a list tells the model through its own signal.
  std::string bytes = key.text().isEmpty() ? std::string() : ToCp1250(key.text());
  if (bytes.size() != 1) return false;
  int code = static_cast<unsigned char>(bytes[0]);
  Control* c = b.control;
  Forward([this, code] { desktop_.UserKey(code); });
  // A text box takes the typed character itself, unless the handler sent
  // the focus elsewhere; every other control has had all of the key.
  bool text =
      c->Kind() == ControlKind::TextBox || (c->Kind() == ControlKind::ComboBox && !c->ListOnly());
  return !(text && code != kKeyEscape && desktop_.Focused() == c && !desktop_.Ended());
}

bool ScreenWindows::MousePress(Bound& b, QObject* watched, QEvent* event) {
  Control& c = *b.control;
  if (c.Kind() == ControlKind::ListBox) {
    // The list chooses on the press, as the model's list does, and never by itself.
    auto* list = static_cast<QListWidget*>(b.widget);
    auto* mouse = static_cast<QMouseEvent*>(event);
    int row = watched == list->viewport() ? list->indexAt(mouse->position().toPoint()).row() : -1;
    if (event->type() == QEvent::MouseButtonPress) {
      if (row >= 0 && mouse->button() == Qt::LeftButton)
        Forward([this, &c, row] { desktop_.UserSelect(c, row); });
      else
        Forward([this, &c] { desktop_.UserFocus(c); });
    }
    return true;
  }
  if (!TakesText(c) || desktop_.Focused() == &c) return false;
  Forward([this, &c] { desktop_.UserFocus(c); });
  // A handler that kept the focus elsewhere keeps the press from the field too.
  return desktop_.Focused() != &c;
}

bool ScreenWindows::eventFilter(QObject* watched, QEvent* event) {
  if (dying_) return false;
  Bound* b = byPart_.value(watched);
  if (!b) return false;
  switch (event->type()) {
    case QEvent::KeyPress: {
      auto* key = static_cast<QKeyEvent*>(event);
      if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
      switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: Forward([this] { desktop_.UserEnter(); }); return true;
        case Qt::Key_Tab: Forward([this] { desktop_.UserTab(); }); return true;
        case Qt::Key_Backtab: Forward([this] { desktop_.UserBackTab(); }); return true;
        default: return KeyPress(*b, *key);
      }
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: return MousePress(*b, watched, event);
    case QEvent::MouseMove:
      // A drag in a list would choose entries behind the model's back.
      return b->control->Kind() == ControlKind::ListBox &&
             static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton;
    case QEvent::MouseButtonRelease: {
      ControlKind kind = b->control->Kind();
      if (kind == ControlKind::ListBox) return true;
      if ((kind == ControlKind::Label || kind == ControlKind::Frame) &&
          b->widget->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) {
        Control* c = b->control;
        Forward([this, c] { desktop_.UserClick(*c); });
      }
      return false;
    }
    default: return false;
  }
}

}  // namespace fisc
