#pragma once

#include <QLayout>

namespace norlaplan {

/// A row of buttons: the first at the left end, the others together at the right. Where they don't fit beside
/// each other they go on in further rows, flush right. Or a row of frames, which share the whole width.
class FlowRow : public QLayout {
  public:
    FlowRow();
    ~FlowRow() override;

    /// Whether the first item stands apart from the others, at the left.
    void setFirstApart(bool apart) { firstApart_ = apart; }

    /// Whether the items of a row are made as high as each other and so wide that they fill it.
    void setFilled(bool filled) { filled_ = filled; }

    void addItem(QLayoutItem* item) override { items_.append(item); }
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override { return items_.value(index); }
    QLayoutItem* takeAt(int index) override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;     ///< all in one row
    QSize minimumSize() const override;  ///< the widest item
    void setGeometry(const QRect& rect) override;

  private:
    using Row = QList<QLayoutItem*>;
    QList<Row> rowsFor(int width) const;
    int widthOf(const Row& row) const;
    static int heightOf(const Row& row);

    Row items_;
    bool firstApart_ = false;
    bool filled_ = false;
};

}  // namespace norlaplan
