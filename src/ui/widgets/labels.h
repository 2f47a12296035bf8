// Labels: captions, headings and figures.
#pragma once

#include <QLabel>
#include <QList>
#include <QString>
#include <QVBoxLayout>

#include "engine/match_setup.h"

namespace kickwell {

/// A label for a figure or for a text from the user's files.
QLabel* MakeText(QAnyStringView objectName, const QString& text, Qt::Alignment alignment = Qt::AlignLeft);

/// The same for a text that matters less.
QLabel* MakeFaint(QAnyStringView objectName, Qt::Alignment alignment = Qt::AlignLeft);

/// Gives `label` bold type of `factor` times the usual size.
QLabel* Enlarged(QLabel* label, qreal factor);

/// A large heading for a text from the user's files.
QLabel* MakeHeading(const QString& objectName);

/// Says in faint text which match of which championship `setup` is. Hidden for a friendly.
QLabel* MakeFixtureLine(const MatchSetup& setup);

/// A fixed caption. It is never cut short.
QLabel* MakeCaption(const QString& text);

/// A bold caption that names `buddy` to screen readers.
QLabel* MakeCaption(const QString& text, QWidget* buddy);

/// A bold caption above `control`, which it names to screen readers.
QVBoxLayout* Captioned(const QString& text, QWidget* control);

/// Gives all captions the width of the widest, so that what stands beside them is aligned.
void AlignCaptions(const QList<QLabel*>& captions);

/// A caption for `figure`, which screen readers announce with it.
QLabel* MakeFigureCaption(const QString& text, QLabel* figure);

}  // namespace kickwell
