#ifndef ZEL_DRAWERLAYOUT_H
#define ZEL_DRAWERLAYOUT_H

#include <QVBoxLayout>

#include <algorithm>

namespace zel {

/// A column that is never narrower than its least width: where its widget is, the widget cuts it off on the
/// right. So a widget that slides open uncovers texts that stand still, instead of wrapping them at every
/// step.
class DrawerLayout : public QVBoxLayout
{
public:
    /// Takes the place of a form's layout, which is deleted: Qt Designer knows none but Qt's own.
    explicit DrawerLayout(QVBoxLayout* former)
    {
        setObjectName(former->objectName());
        setSpacing(former->spacing());
        setContentsMargins(former->contentsMargins());
        while (QLayoutItem* item = former->takeAt(0))
            addItem(item);
        QWidget* widget = former->parentWidget();
        delete former;
        widget->setLayout(this);
    }

    /// In pixels; initially 0.
    void setLeastWidth(int width)
    {
        if (width == m_leastWidth)
            return;
        m_leastWidth = width;
        update();
    }

    int heightForWidth(int width) const override
    {
        return QVBoxLayout::heightForWidth(std::max(width, m_leastWidth));
    }

    void setGeometry(const QRect& rect) override
    {
        QVBoxLayout::setGeometry(
            QRect(rect.topLeft(), QSize(std::max(rect.width(), m_leastWidth), rect.height())));
    }

private:
    int m_leastWidth = 0;
};

} // namespace zel

#endif
