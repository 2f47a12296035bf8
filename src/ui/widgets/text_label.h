// A label for texts that come from the user's files.
#pragma once

#include <QLabel>

namespace kickwell {

/// A tool tip that shows `text` as it stands, where Qt would guess at markup. Empty for an empty text.
QString PlainTip(const QString& text);

/// Shows its text as it stands, never as markup. A text that is too long ends in an ellipsis and does not
/// stretch the window; its tool tip shows more of it, unless it has a tip of its own.
class TextLabel final : public QLabel {
 public:
  explicit TextLabel(const QString& text);

  void SetFaint(bool faint);  ///< For text that matters less.

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Elided() const;
  QSize HintUpTo(int characters) const;

  bool faint_ = false;
};

}  // namespace kickwell
