#include "ui/qt_desktop.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>
#include <utility>

#include "base/program.h"
#include "ui/text.h"

namespace kickwell {
namespace {

/// Names from damaged files may be endless. A box must still fit on the screen and say what has happened.
QString Shortened(const QString& text) {
  constexpr qsizetype Longest = 600;
  return text.size() <= Longest ? text : text.left(Longest / 2) + " ... " + text.right(Longest / 2);
}

QWidget* WindowInUse() {
  QWidget* const screen = QApplication::activeModalWidget();
  return screen != nullptr ? screen : QApplication::activeWindow();
}

QMessageBox::StandardButton Show(QMessageBox::Icon icon, const std::string& text,
                                 QMessageBox::StandardButtons buttons, QMessageBox::StandardButton enter) {
  QMessageBox box(icon, ToQt(ProgramTitle), Shortened(Shown(text)), buttons, WindowInUse());
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(enter);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

/// `name` without what no file name can hold, and short enough for one.
QString ForFileName(QString name) {
  constexpr qsizetype MostBytes = 200;
  static const QRegularExpression forbidden(QStringLiteral("[\\x00-\\x1f\\x7f<>:\"/\\\\|?*]"));
  name.replace(forbidden, QStringLiteral("-"));
  while (name.toUtf8().size() > MostBytes) name.chop(1);
  return name;
}

}  // namespace

QtDesktop::QtDesktop(ProgramFolder folder)
    : folder_(std::move(folder)),
      saveFolder_(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)) {
  if (!QFileInfo(saveFolder_).isDir()) saveFolder_ = QDir::homePath();
}

void QtDesktop::Inform(const std::string& text) {
  Show(QMessageBox::Information, text, QMessageBox::Ok, QMessageBox::Ok);
}

void QtDesktop::Warn(const std::string& text) {
  Show(QMessageBox::Warning, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtDesktop::Ask(const std::string& text, Enter enter) {
  return Show(QMessageBox::NoIcon, text, QMessageBox::Yes | QMessageBox::No,
              enter == Enter::Yes ? QMessageBox::Yes : QMessageBox::No) == QMessageBox::Yes;
}

std::optional<std::string> QtDesktop::AskSaveName(const std::string& proposedName) {
  QFileDialog dialog(WindowInUse(), ToQt(ProgramTitle), saveFolder_, QStringLiteral("HTML File (*.htm)"));
  dialog.setObjectName("SaveDialog");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.selectFile(ForFileName(ToQt(proposedName)));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString file = dialog.selectedFiles().constFirst();
  saveFolder_ = QFileInfo(file).absolutePath();
  return file.toStdString();
}

void QtDesktop::OpenDocument(const std::string& file, std::function<void()> otherwise) {
  const QString path = ToQt((folder_.Root / file).string());
  if (!QFileInfo::exists(path)) return otherwise();
  // Unlike QDesktopServices, this command tells whether it found a program for the file. It may run as long
  // as that program and must not end with this one, so nobody owns it.
  auto* const opener = new QProcess;
  const QDeadlineTimer soon(10'000);  // Later, a failure is none of opening.
  QObject::connect(opener, &QProcess::finished, opener, [opener, otherwise, soon](int code) {
    opener->deleteLater();
    if (code != 0 && !soon.hasExpired()) otherwise();
  });
  QObject::connect(opener, &QProcess::errorOccurred, opener, [opener, otherwise, path](auto error) {
    if (error != QProcess::FailedToStart) return;
    opener->deleteLater();
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) otherwise();
  });
  opener->start(QStringLiteral("xdg-open"), {path});
}

}  // namespace kickwell
