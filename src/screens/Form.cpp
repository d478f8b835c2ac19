#include "screens/Form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "help/HelpTopics.h"
#include "screens/Accelerators.h"
#include "screens/FlowRow.h"
#include "screens/Form20.h"
#include "screens/FormBuilder.h"
#include "screens/SavedLine.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kProgramWidth = 940;
/// Room for the title bar and the borders of a window that the desktop hasn't framed yet.
constexpr QSize kUsualFrame(8, 40);

int heightFor(const QWidget& widget, int width) {
    return widget.layout()->hasHeightForWidth() ? widget.layout()->totalHeightForWidth(width)
                                                : widget.sizeHint().height();
}

}  // namespace

Form::Form(Screens& screens, FormName name, const QString& caption)
    : screens_(screens), outer_(new QVBoxLayout(this)) {
    setObjectName(QString::fromUtf8(name.text));
    setWindowTitle(caption);
    setAutoFillBackground(true);
    outer_->setContentsMargins(0, 0, 0, 0);
    outer_->setSpacing(0);
}

Form::~Form() {
    // The window closes after this: a field that loses the focus there would report to a form that is gone.
    disconnect(qApp, nullptr, this, nullptr);
    for (QObject* child : findChildren<QObject*>())
        disconnect(child, nullptr, this, nullptr);
}

QVBoxLayout& Form::page() {
    if (page_ == nullptr) {
        page_ = new QWidget;
        theme::spaced(new QVBoxLayout(page_));
        scroll_ = new QScrollArea;
        scroll_->setFrameShape(QFrame::NoFrame);
        scroll_->setFocusPolicy(Qt::NoFocus);
        scroll_->setWidgetResizable(true);
        scroll_->setWidget(page_);
        // The window's own background shows through.
        scroll_->viewport()->setAutoFillBackground(false);
        page_->setAutoFillBackground(false);
        page_->installEventFilter(this);
        outer_->insertWidget(0, scroll_, 1);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now != nullptr && page_->isAncestorOf(now)) scroll_->ensureWidgetVisible(now);
        });
    }
    return static_cast<QVBoxLayout&>(*page_->layout());
}

void Form::setFooter(const Footer& buttons) {
    page().setContentsMargins(theme::kMargin, theme::kMargin, theme::kMargin, theme::kGap);
    footer_ = new QWidget;
    auto* const margins = new QVBoxLayout(footer_);
    margins->setContentsMargins(theme::kMargin, theme::kGap, theme::kMargin, theme::kMargin);
    auto* const row = new FlowRow;
    row->setFirstApart(buttons.mainMenu != nullptr);
    margins->addLayout(row);
    std::vector<QPushButton*> shown = {buttons.mainMenu, buttons.previous};
    shown.insert(shown.end(), buttons.others.begin(), buttons.others.end());
    shown.push_back(buttons.main);
    std::erase(shown, nullptr);
    for (QPushButton* const button : shown)
        row->addWidget(button);
    footerTabs_.assign(shown.rbegin(), shown.rend());
    outer_->addWidget(footer_);
    if (buttons.main != nullptr) setMainButton(*buttons.main);
}

void Form::saveAs(const Document& document, const RtfSaver& saveRtf) {
    if (const auto path = saveDocument(services(), document, saveRtf)) tellSaved(*path);
}

void Form::tellSaved(const std::filesystem::path& path) {
    if (saved_ == nullptr) {
        saved_ = new SavedLine;
        on(&saved_->open(), &QPushButton::clicked, "Open", [this] { openSaved(saved_->path()); });
        on(&saved_->showInFolder(), &QPushButton::clicked, "Show in Folder",
           [this] { openSaved(saved_->path().parent_path()); });
        outer_->insertWidget(footer_ == nullptr ? -1 : outer_->indexOf(footer_), saved_);
    }
    saved_->tell(path);
    giveLetters();
}

void Form::openSaved(const std::filesystem::path& path) {
    if (services().desktop.open(path)) return;
    services().messages.show(
        {"No program found", "This desktop has no program that opens " + path.string(), Icon::Information});
}

void Form::setMenus(QMenuBar* menus) {
    menus_ = menus;
    outer_->setMenuBar(menus);
}

void Form::setMainButton(QPushButton& button) {
    main_ = &button;
    theme::makeMain(button);
}

QPushButton* Form::button(const char* name, const QString& caption, const QString& tip,
                          std::function<void()> action) {
    QPushButton* const made = build::button(name, caption, tip);
    on(made, &QPushButton::clicked, build::spokenCaption(caption).toStdString(), std::move(action));
    return made;
}

QSize Form::sizeHint() const {
    if (page_ == nullptr) return QWidget::sizeHint();
    int width = std::max(page_->sizeHint().width(), width_ == Width::Program ? kProgramWidth : 0);
    if (footer_ != nullptr && width_ == Width::Own) width = std::max(width, footer_->sizeHint().width());
    int height = heightFor(*page_, width);
    if (footer_ != nullptr) height += heightFor(*footer_, width);
    if (menus_ != nullptr) height += menus_->sizeHint().height();
    return {width, height};
}

QSize Form::sizeFor(const QSize& room) const {
    return sizeHint().boundedTo(room);
}

void Form::prepareToShow(const QRect& room) {
    if (!fitted_.isValid()) orderTabs();
    giveLetters();
    if (saved_ != nullptr) saved_->hide();
    room_ = room;
    fitTo(room.size() - (frameGeometry().size() - size()).expandedTo(kUsualFrame));
}

void Form::giveLetters() {
    accelerators::assign(*this, menus_);
}

void Form::fitTo(const QSize& room) {
    const bool usersOwn = fitted_.isValid() && size() != fitted_;
    resize(usersOwn ? size().boundedTo(room) : sizeFor(room));
    if (!usersOwn) fitted_ = size();
}

void Form::followContents() {
    if (!isVisible() || isMaximized() || size() != fitted_) return;
    fitTo(room_.size() - (frameGeometry().size() - size()).expandedTo(kUsualFrame));
    const QRect own = frameGeometry();
    if (own.bottom() > room_.bottom()) move(x(), std::max(room_.top(), room_.bottom() - own.height()));
}

void Form::orderTabs() {
    if (footerTabs_.empty() || page_ == nullptr) return;
    // Out of the page the Tab key goes to the button that leads on.
    QWidget* last = nullptr;
    for (QWidget* next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
        if (page_->isAncestorOf(next)) last = next;
    }
    for (QPushButton* const button : footerTabs_) {
        if (last != nullptr) setTabOrder(last, button);
        last = button;
    }
}

void Form::helpAsked() {
    if (const auto topic = topicOfScreen(objectName().toStdString())) showHelpTopic(screens_, *topic);
}

void Form::closed() {
    screens_.hide(*this);
}

const Services& Form::services() const {
    return screens_.services();
}

ProgramState& Form::state() const {
    return screens_.services().state;
}

void Form::run(const std::string& name, const std::function<void()>& action) {
    screens_.runAction(name, action);
}

void Form::closeEvent(QCloseEvent* event) {
    // The navigator decides what is shown next, so the window itself never goes by its own will.
    event->ignore();
    run("Close", [this] { closed(); });
}

void Form::keyPressEvent(QKeyEvent* event) {
    QWidget* const focus = focusWidget();
    const bool onButton =
        qobject_cast<QPushButton*>(focus) != nullptr || qobject_cast<QToolButton*>(focus) != nullptr;
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (onButton)
                static_cast<QAbstractButton*>(focus)->click();
            else if (main_ != nullptr && !main_->isHidden())
                main_->click();
            return;
        case Qt::Key_Escape:
            run("Close", [this] { escaped(); });
            return;
        case Qt::Key_F1:
            run("Help", [this] { helpAsked(); });
            return;
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            if (scroll_ != nullptr) QApplication::sendEvent(scroll_->verticalScrollBar(), event);
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
    if (watched == page_ && event->type() == QEvent::LayoutRequest) followContents();
    return QWidget::eventFilter(watched, event);
}

}  // namespace norlaplan
