// A titled part of an editor.
#pragma once

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QList>
#include <QPushButton>
#include <QString>

#include "ui/widgets/text_box.h"

namespace kickwell {

/// A box with a title, its captions in a column.
class Section final : public QGroupBox {
 public:
  explicit Section(const QString& title);

  void Add(const QString& caption, QWidget* control);  ///< The caption names the control to screen readers.
  void Add(const QString& caption, TextBox* box);      ///< Says below the box what it has cut, too.
  void AddFigure(const QString& caption, QLabel* figure);  ///< The caption is announced with the figure.
  void AddWide(QWidget* widget);                           ///< Over both columns.

  const QList<QLabel*>& Captions() const { return captions_; }  ///< Of the controls added.

  /// Adds the section's button. Enter anywhere in the section presses it.
  void AddButton(QPushButton* button);

 protected:
  bool event(QEvent* event) override;

 private:
  QFormLayout* form_;
  QList<QLabel*> captions_;
  QPushButton* button_ = nullptr;
};

}  // namespace kickwell
