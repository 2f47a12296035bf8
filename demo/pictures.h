// Pictures of the windows that a user works with.
#pragma once

#include <QString>
#include <QWidget>

#include "user.h"

namespace kickwell {

class Pictures {
 public:
  /// Into `folder`, which is made.
  Pictures(User& user, QString folder);

  /// The window as it is shown, with a menu that is open over it, as NAME.png.
  void Take(QWidget& window, const QString& name) const;

 private:
  User& user_;
  QString folder_;
};

}  // namespace kickwell
