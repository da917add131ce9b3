#ifndef ZEL_DRAWERLAYOUT_H
#define ZEL_DRAWERLAYOUT_H

#include <QVBoxLayout>

#include <algorithm>

namespace zel {

/// A column that is never narrower than its least width: where its widget is, the widget cuts it off on the
/// right. So a widget that slides open uncovers texts that stand still, instead of wrapping them anew.
class DrawerLayout : public QVBoxLayout
{
public:
    using QVBoxLayout::QVBoxLayout;

    /// In pixels; 0 at first.
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
