#include "screens/OfficeNote.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "screens/FormBuilder.h"
#include "screens/Theme.h"

namespace norlaplan {

OfficeNote::OfficeNote(const char* name, const QString& heading, const QString& text) {
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(heading);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setPalette(theme::paper());
    auto* const words = build::label("Note", text);
    words->setWordWrap(true);
    auto* const where = build::label("FileLabel", "File:");
    file_ = build::edit("File", "Where the document is");
    file_->setReadOnly(true);
    build::buddy(*where, *file_);

    auto* const row = theme::spaced(new QHBoxLayout, 0);
    row->addWidget(where);
    row->addWidget(file_, 1);
    auto* const column = theme::spaced(new QVBoxLayout(this));
    column->addWidget(build::heading("Heading", heading));
    column->addWidget(words);
    column->addLayout(row);
    column->addStretch();
}

void OfficeNote::showFile(const std::filesystem::path& file) {
    file_->setText(QString::fromStdString(file.string()));
    file_->setCursorPosition(0);
}

}  // namespace norlaplan
