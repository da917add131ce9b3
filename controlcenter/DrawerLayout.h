#ifndef ZEL_DRAWERLAYOUT_H
#define ZEL_DRAWERLAYOUT_H

#include <QVBoxLayout>

#include <algorithm>

namespace zel {

/// A vertical layout that keeps a minimum width: a narrower widget clips it on the right. So a widget that
/// slides open uncovers its texts, instead of wrapping them again at every step.
class DrawerLayout : public QVBoxLayout
{
public:
    /// Replaces and deletes the layout of a form, because Qt Designer only knows Qt's own layouts.
    explicit DrawerLayout(QVBoxLayout* formLayout)
    {
        setObjectName(formLayout->objectName());
        setSpacing(formLayout->spacing());
        setContentsMargins(formLayout->contentsMargins());
        while (QLayoutItem* item = formLayout->takeAt(0))
            addItem(item);
        QWidget* widget = formLayout->parentWidget();
        delete formLayout;
        widget->setLayout(this);
    }

    /// @{
    /// In pixels; 0 at first.
    int minimumWidth() const { return m_minimumWidth; }
    void setMinimumWidth(int width)
    {
        if (width == m_minimumWidth)
            return;
        m_minimumWidth = width;
        update();
    }
    /// @}

    int heightForWidth(int width) const override
    {
        return QVBoxLayout::heightForWidth(std::max(width, m_minimumWidth));
    }

    void setGeometry(const QRect& rect) override
    {
        QVBoxLayout::setGeometry(
            QRect(rect.topLeft(), QSize(std::max(rect.width(), m_minimumWidth), rect.height())));
    }

private:
    int m_minimumWidth = 0;
};

} // namespace zel

#endif
