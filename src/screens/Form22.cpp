#include "screens/Form22.h"

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <optional>

#include "help/HelpTopics.h"
#include "screens/Form20.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kColumns = 3;
constexpr int kRowGap = 14;
const QColor kAtRest(0, 0, 255), kPointedAt(255, 0, 0), kBackground(226, 229, 246);

void setColour(QRadioButton& topic, const QColor& colour) {
    QPalette palette = topic.palette();
    if (palette.color(QPalette::WindowText) == colour) return;
    palette.setColor(QPalette::WindowText, colour);
    topic.setPalette(palette);
}

/// How far an arrow key goes in the list of topics, which runs down one column after the other.
std::optional<std::ptrdiff_t> stepOf(int key, std::ptrdiff_t column) {
    switch (key) {
        case Qt::Key_Up:
            return -1;
        case Qt::Key_Down:
            return 1;
        case Qt::Key_Left:
            return -column;
        case Qt::Key_Right:
            return column;
        default:
            return std::nullopt;
    }
}

}  // namespace

Form22::Form22(Screens& screens) : Form(screens, forms::kHelpIndex, "Help Index") {
    setPalette(theme::onFixedBackground(kBackground));
    auto* const prompt = build::heading("Label1", "Choose a Topic for detailed Help");
    auto* const keys = build::label(
        "Keys",
        "F1 on any screen opens the topic of that screen. Escape comes back to this index, and from it "
        "to the screen where you were; nothing that you entered there is lost.");
    keys->setFont(theme::noteFont());
    keys->setWordWrap(true);

    page().setSpacing(theme::kWideGap);
    page().addWidget(prompt);
    page().addWidget(makeTopics(), 1);
    page().addWidget(keys);
    setFooter({.others = {button("Close", "Close", "Close the index and go back",
                                 [this] { this->screens().hide(*this); })}});
    light(nullptr);
    QList<QWidget*> all = findChildren<QWidget*>();
    all.append(this);
    for (QWidget* const widget : all) {
        widget->setMouseTracking(true);
        widget->installEventFilter(this);
    }
}

QWidget* Form22::makeTopics() {
    QWidget* const topics = theme::makePanel("Topics");
    auto* const grid = theme::spaced(new QGridLayout(topics));
    grid->setVerticalSpacing(kRowGap);
    const auto all = helpTopics();
    const int rows = (static_cast<int>(all.size()) + kColumns - 1) / kColumns;
    for (const auto& [number, caption] : all) {
        QRadioButton* const topic =
            build::option(("Option" + std::to_string(number)).c_str(), QString::fromUtf8(caption));
        on(topic, &QRadioButton::clicked, "Help",
           [this, shown = number] { showHelpTopic(this->screens(), shown); });
        grid->addWidget(topic, (number - 1) % rows, (number - 1) / rows, Qt::AlignLeft);
        topics_.push_back(topic);
    }
    for (int column = 0; column < kColumns; ++column)
        grid->setColumnStretch(column, 1);
    return topics;
}

void Form22::markLastRead() {
    light(nullptr);
    const int last = state().helpTopic;
    const bool any = last >= 1 && last <= static_cast<int>(topics_.size());
    QRadioButton& topic = *topics_[any ? static_cast<std::size_t>(last) - 1 : 0];
    if (any) topic.setChecked(true);
    topic.setFocus();
}

void Form22::light(const QObject* pointed) {
    for (QRadioButton* const topic : topics_)
        setColour(*topic, pointed != nullptr && topic == pointed ? kPointedAt : kAtRest);
}

bool Form22::takesKey(QRadioButton& topic, int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        topic.click();
        return true;
    }
    const auto count = static_cast<std::ptrdiff_t>(topics_.size());
    const auto step = stepOf(key, (count + kColumns - 1) / kColumns);
    if (!step) return false;
    const auto to = std::find(topics_.begin(), topics_.end(), &topic) - topics_.begin() + *step;
    if (to >= 0 && to < count) topics_[static_cast<std::size_t>(to)]->setFocus(Qt::TabFocusReason);
    return true;
}

bool Form22::eventFilter(QObject* watched, QEvent* event) {
    auto* const topic = qobject_cast<QRadioButton*>(watched);
    if (event->type() == QEvent::KeyPress && topic != nullptr &&
        takesKey(*topic, static_cast<QKeyEvent*>(event)->key()))
        return true;
    if (event->type() == QEvent::Leave && watched == this) light(nullptr);
    if (event->type() == QEvent::MouseMove) {
        light(topic);
        // A topic would hand it on to what lies beneath.
        if (topic != nullptr && static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton) return true;
    }
    return Form::eventFilter(watched, event);
}

}  // namespace norlaplan
