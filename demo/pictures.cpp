#include "pictures.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <cstdio>
#include <stdexcept>
#include <utility>

namespace kickwell {

Pictures::Pictures(User& user, QString folder) : user_(user), folder_(std::move(folder)) {
  QDir().mkpath(folder_);
}

void Pictures::Take(QWidget& window, const QString& name) const {
  user_.Wait(300);  // Let the window manager finish, and the ball arrive.
  QPixmap picture = window.grab();
  if (QWidget* const menu = QApplication::activePopupWidget()) {
    QPainter(&picture).drawPixmap(window.mapFromGlobal(menu->pos()), menu->grab());
  }
  const QString file = folder_ + "/" + name + ".png";
  if (!picture.save(file)) throw std::runtime_error("can't write " + file.toStdString());
  std::printf("%s\n", qPrintable(file));
}

}  // namespace kickwell
