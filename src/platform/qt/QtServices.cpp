#include "platform/qt/QtServices.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>
#include <fstream>
#include <sstream>

#include "platform/Converter.h"
#include "platform/Files.h"
#include "platform/qt/Cp1250.h"

namespace fisc {

namespace {

QMessageBox::Icon IconOf(Icon icon) {
  switch (icon) {
    case Icon::Critical: return QMessageBox::Critical;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Warning: return QMessageBox::Warning;
    case Icon::Information: return QMessageBox::Information;
    case Icon::None: break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::Ok: break;
  }
  return QMessageBox::Ok;
}

// A box closed without a button (Escape, the close button) gives the answer
// the platform gives: the cancelling button of the box.
Answer AnswerOf(QMessageBox::StandardButton button, Buttons buttons) {
  switch (button) {
    case QMessageBox::Ok: return Answer::Ok;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    case QMessageBox::Cancel: return Answer::Cancel;
    default: break;
  }
  switch (buttons) {
    case Buttons::Ok: return Answer::Ok;
    case Buttons::YesNo: return Answer::No;
    default: return Answer::Cancel;
  }
}

QString ReadAll(const std::filesystem::path& path, bool& found) {
  std::ifstream in(path, std::ios::binary);
  found = static_cast<bool>(in);
  std::ostringstream bytes;
  if (found) bytes << in.rdbuf();
  QString text = FromCp1250(bytes.str());
  text.remove(QLatin1Char('\r'));
  return text;
}

QFont ViewerFont() {
  QFont font(QStringLiteral("Courier New"));
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  if (QFontInfo(font).family() != font.family()) font.setFamily(QStringLiteral("Liberation Mono"));
  if (!QFontInfo(font).fixedPitch()) font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  return font;
}

}  // namespace

QtDialogs::~QtDialogs() {
  while (busy_ > 0) Busy(false);
}

Answer QtDialogs::Box(std::string_view text, Buttons buttons, Icon icon, std::string_view title) {
  QMessageBox box(IconOf(icon), FromCp1250(title), FromCp1250(text), ButtonsOf(buttons),
                  QApplication::activeWindow());
  // The texts are the program's own, never markup: a '<' in them is shown as it is.
  box.setTextFormat(Qt::PlainText);
  auto pressed = static_cast<QMessageBox::StandardButton>(box.exec());
  return AnswerOf(box.clickedButton() ? box.standardButton(box.clickedButton()) : pressed, buttons);
}

std::optional<std::string> QtDialogs::Input(std::string_view prompt, std::string_view title,
                                            std::string_view initial) {
  QInputDialog dialog(QApplication::activeWindow());
  dialog.setWindowTitle(FromCp1250(title));
  dialog.setLabelText(FromCp1250(prompt));
  dialog.setTextValue(FromCp1250(initial));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return ToCp1250(dialog.textValue());
}

void QtDialogs::Busy(bool on) {
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    ++busy_;
  } else if (busy_ > 0) {
    QApplication::restoreOverrideCursor();
    --busy_;
  }
}

void ShowFatal(int number, std::string_view description) {
  QMessageBox box(
      QMessageBox::Critical, QStringLiteral("fisc"),
      QStringLiteral("Run-time error '%1':\n\n%2").arg(number).arg(FromCp1250(description)),
      QMessageBox::Ok, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

QtLauncher::~QtLauncher() {
  for (const auto& viewer : viewers_) delete viewer.data();
}

std::vector<QPlainTextEdit*> QtLauncher::Viewers() const {
  std::vector<QPlainTextEdit*> open;
  for (const auto& viewer : viewers_)
    if (viewer) open.push_back(viewer.data());
  return open;
}

void QtLauncher::View(std::string_view name) {
  bool found = false;
  QString text = ReadAll(files_.Path(name), found);
  if (!found) {
    QMessageBox::warning(QApplication::activeWindow(), FromCp1250(name),
                         QStringLiteral("Cannot find the file %1.").arg(FromCp1250(name)));
    return;
  }
  auto* viewer = new QPlainTextEdit;
  viewer->setAttribute(Qt::WA_DeleteOnClose);
  viewer->setWindowTitle(FromCp1250(name));
  viewer->setReadOnly(true);
  viewer->setLineWrapMode(QPlainTextEdit::NoWrap);
  viewer->setFont(ViewerFont());
  viewer->setPlainText(text);
  viewer->resize(720, 520);
  viewer->show();
  std::erase_if(viewers_, [](const QPointer<QPlainTextEdit>& v) { return v.isNull(); });
  viewers_.emplace_back(viewer);
}

void QtLauncher::Start(std::string_view program, std::string_view argument) {
  QString name = FromCp1250(program);
  if (name == QLatin1String("notepad") || name == QLatin1String("help")) {
    View(argument);
    return;
  }
  QStringList arguments;
  if (!argument.empty()) arguments << FromCp1250(argument);
  QString workdir = QString::fromStdString(files_.Directory().string());
  if (EsteConvertor(program)) {
    // Its window is its own; the clerk goes on when it has closed.
    std::filesystem::path convertor = GasesteConvertor(files_.Directory());
    if (!convertor.empty())
      QProcess::startDetached(QString::fromStdString(convertor.string()), {workdir}, workdir);
    return;
  }
  if (name.compare(QLatin1String("calc.exe"), Qt::CaseInsensitive) == 0) {
    for (const char* calculator :
         {"gnome-calculator", "galculator", "kcalc", "qalculate-gtk", "xcalc"}) {
      QString path = QStandardPaths::findExecutable(QLatin1String(calculator));
      if (!path.isEmpty()) {
        QProcess::startDetached(path, {}, workdir);
        return;
      }
    }
    return;
  }
  // A program delivered with ours stands beside it; others are on the path.
  QString path = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
  if (path.isEmpty()) path = QStandardPaths::findExecutable(name);
  if (!path.isEmpty()) QProcess::startDetached(path, arguments, workdir);
}

}  // namespace fisc
