#include "PendingList.h"

#include "LanguageFollower.h"
#include "VerticalArea.h"
#include "ZelSettingsPanel.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalMapper>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace zel {

namespace {

const int LeastHeightOfLines = 60;    // pixels, for two lines
const int CompactHeightOfLines = 104; // pixels, for a long line and two short ones
const int LineInset = 4;              // pixels, padding and border of a line
const int Inset = 12;                 // pixels, left and right of all texts

// An application's own sheet may give all widgets a background.
const char* const Style =
    "QFrame, .QWidget { background: transparent; }"
    "#pendingList { background: rgb(237,237,237); border-radius: 4px; }"
    "QLabel { font: bold 14px \"Open Sans\"; color: rgb(34,34,34); }"
    "QPushButton { background: transparent; border: 1px solid transparent; padding: 3px;"
    "              color: rgb(34,34,34); font: 14px \"Open Sans\"; text-align: left; outline: none; }"
    "QPushButton:hover { background: rgb(215,215,235); }"
    "QPushButton:focus { border-color: rgb(52,51,180); }"
    "#discardButton { padding: 1px 7px; border-color: rgb(120,120,120); border-radius: 3px;"
    "                 color: rgb(52,51,180); font: 13px \"Open Sans\"; }"
    "#discardButton:focus { border-color: rgb(52,51,180); background: rgb(215,215,235); }"
    "#takeBack { padding: 0px; text-align: center; color: rgb(52,51,180); font: bold 14px \"Open Sans\"; }"
    "#takeBack:disabled { color: rgb(150,150,150); }";

const QChar Arrow = 0x2192;

QString changeText(const QString& stored, const QString& shown)
{
    return stored + ' ' + Arrow + ' ' + shown;
}

QString lineText(const QString& name, const QString& change)
{
    return QCoreApplication::translate("PendingList", "%1: %2").arg(name, change);
}

QString textOf(const ZelPendingEdit& edit)
{
    return lineText(edit.name, changeText(edit.stored, edit.shown));
}

/// An edit, as a button: in one line, or in several where that is too long.
class Line : public QPushButton
{
public:
    Line(QWidget* parent, const QScrollArea& area)
        : QPushButton(parent)
        , m_area(area)
    {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }

    void setEdit(const ZelPendingEdit& edit)
    {
        m_edit = edit;
        setAccessibleName(textOf(edit));
        fit();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QPushButton::resizeEvent(event);
        fit();
    }

private:
    int widthOf(const QString& text) const { return fontMetrics().size(Qt::TextSingleLine, text).width(); }

    QString shortened(const QString& text, int room) const
    {
        // Folders often differ at their ends.
        return fontMetrics().elidedText(text, text.contains('/') ? Qt::ElideMiddle : Qt::ElideRight, room);
    }

    void fit()
    {
        ensurePolished(); // Its sheet sets the font.
        // As if the scroll bar was always there: a wrapped line may bring it, and wrap because of it.
        const int barWidth = m_area.verticalScrollBar()->sizeHint().width();
        const int reserved = barWidth + 2 * m_area.frameWidth() + m_area.widget()->width() - m_area.width();
        const int width = this->width() - 2 * LineInset - reserved;
        const QString whole = accessibleName();
        QString text = whole;
        if (widthOf(whole) > width) {
            const bool apart = widthOf(changeText(m_edit.stored, m_edit.shown)) > width;
            const QString stored = shortened(m_edit.stored, width - widthOf(changeText("", "")));
            const QString change = changeText(stored, (apart ? "\n" : "") + shortened(m_edit.shown, width));
            text = lineText(shortened(m_edit.name, width), '\n' + change).replace(" \n", "\n");
        }
        setToolTip(QString(text).replace('\n', ' ') == whole ? QString() : whole);
        setText(text.replace('&', "&&"));
    }

    const QScrollArea& m_area; ///< Scrolls the list.
    ZelPendingEdit m_edit;
};

/// In which the lines scroll.
QScrollArea* newArea(QVBoxLayout* lines, QWidget* parent)
{
    auto* content = new QWidget;
    content->setLayout(lines);
    lines->setContentsMargins(Inset - LineInset, 0, Inset - LineInset, 0);
    lines->setSpacing(0);
    auto* area = new VerticalArea(content, LeastHeightOfLines, parent);
    area->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    return area;
}

} // namespace

PendingList::PendingList(QWidget* parent)
    : QFrame(parent)
    , m_title(new QLabel(this))
    , m_discard(new QPushButton(this))
    , m_lines(new QVBoxLayout)
    , m_area(newArea(m_lines, this))
    , m_goTo(new QSignalMapper(this))
    , m_putBack(new QSignalMapper(this))
{
    setObjectName("pendingList");
    setStyleSheet(Style);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    m_discard->setObjectName("discardButton");
    auto* heading = new QHBoxLayout;
    heading->setContentsMargins(Inset, 0, Inset, 0);
    heading->addWidget(m_title, 1);
    heading->addWidget(m_discard);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 8);
    layout->setSpacing(2);
    layout->addLayout(heading);
    layout->addWidget(m_area);
    connect(m_discard, SIGNAL(clicked()), this, SIGNAL(discardRequested()));
    connect(m_goTo, SIGNAL(mapped(int)), this, SLOT(goToField(int)));
    connect(m_putBack, SIGNAL(mapped(int)), this, SLOT(putBack(int)));
    hide();
    setTexts();
    new LanguageFollower(this, [this] { setTexts(); });
}

void PendingList::setPages(const QList<ZelSettingsPanel*>& pages)
{
    for (ZelSettingsPanel* page : pages)
        m_pages << page;
    refresh();
}

void PendingList::setCompact(bool compact)
{
    m_area->setMaximumHeight(compact ? CompactHeightOfLines : QWIDGETSIZE_MAX);
}

void PendingList::setTexts()
{
    m_title->setText(QCoreApplication::translate("PendingList", "Not applied yet"));
    m_discard->setText(QCoreApplication::translate("PendingList", "Discard"));
    m_discard->setToolTip(QCoreApplication::translate("ZelControlCenter", "Discard changes"));
    m_discard->setAccessibleName(m_discard->toolTip());
    m_discard->setAccessibleDescription(m_title->text());
    m_shown.clear();
    refresh();
}

void PendingList::refresh()
{
    m_canApply = std::any_of(m_pages.begin(), m_pages.end(), [](const QPointer<ZelSettingsPanel>& page) {
        return page && page->hasModifications();
    });
    showEdits();
}

void PendingList::onEdited()
{
    if (m_canApply)
        showEdits();
}

void PendingList::showEdits()
{
    decltype(m_edits) edits;
    QStringList texts;
    for (const QPointer<ZelSettingsPanel>& page : m_pages) {
        auto* pending = dynamic_cast<ZelPageEdits*>(page.data());
        for (const ZelPendingEdit& edit : pending ? pending->pendingEdits() : std::vector<ZelPendingEdit>()) {
            edits.push_back({page, edit});
            texts << textOf(edit);
        }
    }
    moveFocusBefore(texts.size());
    m_edits = edits;
    if (texts == m_shown)
        return;
    m_shown = texts;
    while (m_lines->count() > texts.size()) {
        // Later, because the line may be sending the click that has led here.
        const std::unique_ptr<QLayoutItem> item(m_lines->takeAt(m_lines->count() - 1));
        item->widget()->hide();
        item->widget()->deleteLater();
    }
    while (m_lines->count() < texts.size())
        addRow();
    for (int line = 0; line < texts.size(); ++line)
        showEdit(line, editAt(line));
    m_discard->setVisible(std::any_of(m_edits.begin(), m_edits.end(),
                                      [](const auto& edit) { return bool(edit.second.putBack); }));
    setVisible(!texts.isEmpty());
}

void PendingList::moveFocusBefore(int count)
{
    for (int line = count; line < m_lines->count(); ++line) {
        const bool hasFocus = m_lines->itemAt(line)->widget()->isAncestorOf(QApplication::focusWidget());
        if ((hasFocus || (!count && m_discard->hasFocus())) && goToField(line))
            return;
    }
}

void PendingList::showEdit(int row, const ZelPendingEdit& edit)
{
    const auto* layout = m_lines->itemAt(row)->widget()->layout();
    auto* line = static_cast<Line*>(layout->itemAt(0)->widget());
    line->setEdit(edit);
    line->setEnabled(edit.field);
    line->setAccessibleDescription(QCoreApplication::translate("PendingList", "Goes to the setting."));
    QWidget* takeBack = layout->itemAt(1)->widget();
    takeBack->setEnabled(static_cast<bool>(edit.putBack));
    takeBack->setToolTip(QCoreApplication::translate("HelpCard", "Puts back what is stored"));
    takeBack->setAccessibleName(takeBack->toolTip());
    takeBack->setAccessibleDescription(line->accessibleName());
}

void PendingList::addRow()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* line = new Line(row, *m_area);
    line->setObjectName("editButton");
    line->setFocusPolicy(Qt::TabFocus); // A click must not take in what is typed, which may add a line.
    auto* takeBack = new QPushButton(QString(QChar(0x00D7)), row); // A cross.
    takeBack->setObjectName("takeBack");
    takeBack->setFocusPolicy(Qt::TabFocus);
    takeBack->setFixedSize(26, 26);
    layout->addWidget(line);
    layout->addWidget(takeBack);
    const auto* above = m_lines->isEmpty() ? nullptr : m_lines->itemAt(m_lines->count() - 1)->widget();
    setTabOrder(above ? above->layout()->itemAt(1)->widget() : m_discard, line);
    setTabOrder(line, takeBack);
    m_goTo->setMapping(line, m_lines->count());
    connect(line, SIGNAL(clicked()), m_goTo, SLOT(map()));
    m_putBack->setMapping(takeBack, m_lines->count());
    connect(takeBack, SIGNAL(clicked()), m_putBack, SLOT(map()));
    m_lines->addWidget(row);
}

bool PendingList::goToField(int line)
{
    return goTo(editAt(line));
}

bool PendingList::goTo(const ZelPendingEdit& edit)
{
    if (!edit.field || !edit.field->isVisible())
        return false;
    edit.field->setFocus(Qt::OtherFocusReason);
    return true;
}

void PendingList::putBack(int line)
{
    const ZelPendingEdit edit = editAt(line); // The list changes.
    if (edit.putBack)
        edit.putBack();
    // Afterwards, so that Escape does not make the edit again.
    goTo(edit);
}

ZelPendingEdit PendingList::editAt(int line) const
{
    const bool isShown = line < static_cast<int>(m_edits.size()) && m_edits[line].first;
    return isShown ? m_edits[line].second : ZelPendingEdit();
}

} // namespace zel
