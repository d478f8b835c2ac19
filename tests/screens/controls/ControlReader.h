#pragma once

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>
#include <map>
#include <vector>

#include "screens/Form.h"

namespace norlaplan::testing {

/// Finds the controls of a form by their names and reads them as a user and a screen reader do.
class ControlReader {
  public:
    explicit ControlReader(Form& form) : form_(form) {
        if (auto* const bar = form.findChild<QMenuBar*>()) addItems(bar->actions(), "");
    }

    /// Every control of that name, the form's own name giving the form.
    std::vector<QObject*> find(const QString& name) const {
        if (name == form_.objectName()) return {&form_};
        if (const auto item = items_.find(name); item != items_.end()) return {item->second};
        std::vector<QObject*> found;
        for (QWidget* const widget : form_.findChildren<QWidget*>(name)) {
            if (widget->window() == &form_) found.push_back(widget);
        }
        for (QAction* const action : looseActions()) {
            if (pathOf(*action) == name) found.push_back(action);
        }
        return found;
    }

    /// The names of all that the user presses, types into, chooses from or moves, what is hidden included.
    /// One without a name is told by what it is.
    QStringList interactive() const {
        QStringList names;
        for (const auto& [path, item] : items_)
            names << path;
        for (QAction* const action : looseActions())
            names << pathOf(*action);
        for (QWidget* const widget : form_.findChildren<QWidget*>()) {
            if (isInteractive(*widget) && widget->window() == &form_ && !isPart(*widget))
                names << nameOf(*widget);
        }
        return names;
    }

    static QString textOf(const QObject& control) {
        if (auto* const form = dynamic_cast<const Form*>(&control)) return form->windowTitle();
        if (auto* const action = qobject_cast<const QAction*>(&control)) return action->text().remove('&');
        if (auto* const button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
        if (auto* const label = qobject_cast<const QLabel*>(&control)) return label->text();
        if (auto* const frame = qobject_cast<const QGroupBox*>(&control)) return frame->title();
        if (auto* const field = qobject_cast<const QLineEdit*>(&control)) return field->text();
        if (auto* const list = qobject_cast<const QComboBox*>(&control)) return list->currentText();
        if (auto* const text = qobject_cast<const QPlainTextEdit*>(&control)) return text->toPlainText();
        if (auto* const text = qobject_cast<const QTextEdit*>(&control)) return text->toPlainText();
        return {};
    }
    /// The tip of an item of a menu without one is its text, which is none.
    static QString tipOf(const QObject& control) {
        if (auto* const widget = qobject_cast<const QWidget*>(&control)) return widget->toolTip();
        const auto& action = static_cast<const QAction&>(control);
        return action.toolTip() == action.text().remove('&') ? QString() : action.toolTip();
    }
    static bool isShown(const QObject& control) {
        if (auto* const widget = qobject_cast<const QWidget*>(&control)) return widget->isVisible();
        return static_cast<const QAction&>(control).isVisible();
    }
    static bool isEnabled(const QObject& control) {
        if (auto* const widget = qobject_cast<const QWidget*>(&control)) return widget->isEnabled();
        return static_cast<const QAction&>(control).isEnabled();
    }
    static bool isMarked(const QObject& control) {
        auto* const button = qobject_cast<const QAbstractButton*>(&control);
        return button != nullptr && button->isChecked();
    }
    static QString spoken(QObject& control, QAccessible::Text what) {
        QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(&control);
        return heard == nullptr ? QString() : heard->text(what);
    }
    /// Whether it has anything for a screen reader to say: no text that is empty, no line of a drawing.
    static bool speaks(const QObject& control) {
        if (auto* const label = qobject_cast<const QLabel*>(&control))
            return !label->text().trimmed().isEmpty();
        auto* const widget = qobject_cast<const QWidget*>(&control);
        return widget != nullptr && !widget->isWindow() &&
               !widget->testAttribute(Qt::WA_TransparentForMouseEvents);
    }
    /// Whether it is what its name says: a Command is a button, a Text a field.
    static bool isOfItsKind(const QObject& control) {
        static const QRegularExpression numbered("^([A-Za-z]+?)[0-9]+$");
        const QString kind = numbered.match(control.objectName()).captured(1);
        if (kind == "Command") return is<QPushButton>(control);
        if (kind == "Option") return is<QRadioButton>(control);
        if (kind == "Check") return is<QCheckBox>(control);
        if (kind == "Combo") return is<QComboBox>(control);
        if (kind == "Label") return is<QLabel>(control);
        if (kind == "Frame") return is<QGroupBox>(control) || is<QFrame>(control);
        if (kind == "RichTextBox") return is<QTextEdit>(control);
        if (kind == "HScroll" || kind == "VScroll") return is<QAbstractSlider>(control);
        if (kind == "Text") return is<QLineEdit>(control) || is<QPlainTextEdit>(control);
        return true;
    }

  private:
    template <typename Kind>
    static bool is(const QObject& control) {
        return qobject_cast<const Kind*>(&control) != nullptr;
    }
    static bool isInteractive(const QObject& control) {
        return is<QAbstractButton>(control) || is<QLineEdit>(control) || is<QTextEdit>(control) ||
               is<QPlainTextEdit>(control) || is<QComboBox>(control) || is<QAbstractItemView>(control) ||
               is<QAbstractSlider>(control) || is<QAbstractSpinBox>(control) || is<QTabBar>(control);
    }
    /// Whether it is a piece of another control, such as the bars and heads of a table.
    bool isPart(const QWidget& widget) const {
        if (widget.objectName().startsWith("qt_")) return true;
        if (is<QScrollBar>(widget) && widget.objectName().isEmpty()) return true;
        for (const QWidget* above = widget.parentWidget(); above != &form_; above = above->parentWidget()) {
            if (isInteractive(*above)) return true;
        }
        return false;
    }
    static QString nameOf(const QObject& control) {
        if (!control.objectName().isEmpty()) return control.objectName();
        return QString("%1 \"%2\" without a name").arg(control.metaObject()->className(), textOf(control));
    }

    /// The name of an action that stands in no menu, behind that of the control to which it belongs.
    QString pathOf(const QAction& action) const {
        const QObject& owner = *action.parent();
        return &owner == &form_ ? nameOf(action) : nameOf(owner) + " > " + nameOf(action);
    }

    void addItems(const QList<QAction*>& actions, const QString& menu) {
        for (QAction* const action : actions) {
            if (action->isSeparator()) continue;
            const QString own = action->menu() == nullptr ? nameOf(*action) : action->menu()->objectName();
            const QString path = menu + (own.isEmpty() ? textOf(*action) : own);
            items_[path] = action;
            if (action->menu() != nullptr) addItems(action->menu()->actions(), path + " > ");
        }
    }
    /// Actions of controls that stand in no menu of the form.
    std::vector<QAction*> looseActions() const {
        std::vector<QAction*> loose;
        for (QAction* const action : form_.findChildren<QAction*>()) {
            const bool inMenu = std::any_of(items_.begin(), items_.end(),
                                            [&](const auto& item) { return item.second == action; });
            if (!inMenu && !action->isSeparator() && action->menu() == nullptr) loose.push_back(action);
        }
        return loose;
    }

    Form& form_;
    std::map<QString, QAction*> items_;
};

}  // namespace norlaplan::testing
