#include "screens/SavedLine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "screens/FormBuilder.h"
#include "screens/Theme.h"

namespace norlaplan {

SavedLine::SavedLine()
    : text_(build::label("SavedText")),
      open_(build::button("OpenSaved", "Open", "Open the saved file with its program")),
      folder_(build::button("ShowSaved", "Show in Folder", "Open the folder of the saved file")) {
    setObjectName("SavedLine");
    // A long path is cut in its middle, never the window made wider.
    text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const row = theme::spaced(new QHBoxLayout(this), 0);
    row->setContentsMargins(theme::kMargin, 0, theme::kMargin, 0);
    row->addWidget(text_, 1);
    row->addWidget(open_);
    row->addWidget(folder_);
    hide();
}

void SavedLine::tell(const std::filesystem::path& path) {
    path_ = path;
    const QString whole = "Saved as " + QString::fromStdString(path.string());
    text_->setToolTip(whole);
    text_->setAccessibleName(whole);
    show();
    elide();
}

void SavedLine::elide() {
    text_->setText(text_->fontMetrics().elidedText(text_->toolTip(), Qt::ElideMiddle, text_->width()));
}

void SavedLine::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    elide();
}

}  // namespace norlaplan
