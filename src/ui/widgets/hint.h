// What an empty list says.
#pragma once

#include <QAbstractItemView>
#include <QString>

namespace kickwell {

/// Says in faint text in the middle of `list`, which is being painted, what it is for.
void PaintHint(QAbstractItemView* list, const QString& hint);

}  // namespace kickwell
