#pragma once

#include <QList>
#include <QString>

class QMenu;
class QMenuBar;
class QWidget;

/// The letter that presses a control together with Alt. Captions that name one with "&" keep it, the first
/// where several name the same; the others get a letter of their own, if any way leaves one for each.
namespace norlaplan::accelerators {

/// One letter for each caption, no letter twice, none of `taken`; a null character where none is left.
QList<QChar> choose(const QList<QString>& captions, const QString& taken = {});

/// The caption as it is drawn: "&" before the letter and nowhere else.
QString marked(QString caption, QChar letter);

/// Gives every button of the window its letter, beside those of the menu bar, if it has one, and the labels
/// of its fields those that are left.
void assign(QWidget& window, const QMenuBar* menus);

/// Marks the items of a menu and of the menus within it.
void mark(QMenu& menu);

}  // namespace norlaplan::accelerators
