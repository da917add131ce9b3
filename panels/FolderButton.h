#ifndef ZEL_FOLDERBUTTON_H
#define ZEL_FOLDERBUTTON_H

#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace zel {

/// A button that chooses a folder. It paints its text as it is: an "&" in a path is no shortcut.
class FolderButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStyleOptionButton option;
        initStyleOption(&option);
        option.text.replace('&', "&&");
        QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
    }
};

} // namespace zel

#endif
