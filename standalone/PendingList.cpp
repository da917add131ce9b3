#include "PendingList.h"

#include "LanguageFollower.h"
#include "ZelPageEdits.h"
#include "ZelSettingsPanel.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalMapper>
#include <QVBoxLayout>

#include <memory>
#include <vector>

namespace zel {

namespace {

// An application's own sheet may give all widgets a background.
const char* const Style =
    "QWidget { background: transparent; }"
    "#pendingList { background: rgb(237,237,237); border-radius: 4px; }"
    "QLabel { font: bold 14px \"Open Sans\"; color: rgb(34,34,34); }"
    "QPushButton { background: transparent; border: 1px solid transparent; padding: 3px;"
    "              color: rgb(34,34,34); font: 14px \"Open Sans\"; text-align: left; outline: none; }"
    "QPushButton:hover { background: rgb(215,215,235); }"
    "QPushButton:focus { border-color: rgb(52,51,180); }"
    "#takeBack { padding: 0px; text-align: center; color: rgb(52,51,180); font: bold 14px \"Open Sans\"; }";

/// A button that elides its text in the middle.
class Line : public QPushButton
{
public:
    explicit Line(QWidget* parent)
        : QPushButton(parent)
    {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }

    void show(const QString& text)
    {
        m_text = text;
        setAccessibleName(text);
        elide();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QPushButton::resizeEvent(event);
        elide();
    }

private:
    void elide()
    {
        const int margins = 8; // Padding and borders.
        const QString shown = fontMetrics().elidedText(m_text, Qt::ElideMiddle, width() - margins);
        setToolTip(shown == m_text ? QString() : m_text);
        setText(QString(shown).replace('&', "&&"));
    }

    QString m_text;
};

std::vector<ZelPendingEdit> editsOf(const QList<QPointer<ZelSettingsPanel>>& pages)
{
    std::vector<ZelPendingEdit> all;
    for (const QPointer<ZelSettingsPanel>& page : pages) {
        auto* edits = dynamic_cast<ZelPageEdits*>(page.data());
        for (const ZelPendingEdit& edit : edits ? edits->pendingEdits() : std::vector<ZelPendingEdit>())
            all.push_back(edit);
    }
    return all;
}

QString textOf(const ZelPendingEdit& edit)
{
    const QString change = edit.stored + ' ' + QChar(0x2192) + ' ' + edit.shown; // An arrow.
    return QCoreApplication::translate("PendingList", "%1: %2").arg(edit.name, change);
}

} // namespace

PendingList::PendingList(QWidget* parent)
    : QFrame(parent)
    , m_title(new QLabel(this))
    , m_goTo(new QSignalMapper(this))
    , m_putBack(new QSignalMapper(this))
{
    setObjectName("pendingList");
    setStyleSheet(Style);
    setMaximumWidth(520);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 10, 8, 10);
    layout->setSpacing(4);
    m_title->setTextFormat(Qt::PlainText);
    layout->addWidget(m_title);
    m_lines = new QVBoxLayout;
    m_lines->setSpacing(0);
    layout->addLayout(m_lines);
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

void PendingList::setTexts()
{
    m_title->setText(QCoreApplication::translate("PendingList", "Not applied yet"));
    m_shown.clear();
    refresh();
}

void PendingList::refresh()
{
    const auto edits = editsOf(m_pages);
    QStringList texts;
    for (const ZelPendingEdit& edit : edits)
        texts << textOf(edit);
    if (texts == m_shown)
        return;
    m_shown = texts;
    setVisible(!texts.isEmpty());
    while (m_lines->count() > texts.size()) {
        // Later, because the line may be sending the click that has led here.
        const std::unique_ptr<QLayoutItem> item(m_lines->takeAt(m_lines->count() - 1));
        item->widget()->hide();
        item->widget()->deleteLater();
    }
    while (m_lines->count() < texts.size())
        addRow();
    for (int i = 0; i < texts.size(); ++i) {
        const auto* row = m_lines->itemAt(i)->widget()->layout();
        auto* line = static_cast<Line*>(row->itemAt(0)->widget());
        line->show(texts[i]);
        line->parentWidget()->setEnabled(edits[i].field);
        line->setAccessibleDescription(QCoreApplication::translate("PendingList", "Goes to the setting."));
        QWidget* takeBack = row->itemAt(1)->widget();
        takeBack->setToolTip(QCoreApplication::translate("ZelHelpCard", "Puts back what is stored"));
        takeBack->setAccessibleName(takeBack->toolTip());
        takeBack->setAccessibleDescription(texts[i]);
    }
}

void PendingList::addRow()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* line = new Line(row);
    auto* takeBack = new QPushButton(QString(QChar(0x00D7)), row); // A cross.
    takeBack->setObjectName("takeBack");
    takeBack->setFixedSize(26, 26);
    layout->addWidget(line);
    layout->addWidget(takeBack);
    m_goTo->setMapping(line, m_lines->count());
    connect(line, SIGNAL(clicked()), m_goTo, SLOT(map()));
    m_putBack->setMapping(takeBack, m_lines->count());
    connect(takeBack, SIGNAL(clicked()), m_putBack, SLOT(map()));
    m_lines->addWidget(row);
    row->show();
}

void PendingList::goToField(int line)
{
    const auto edits = editsOf(m_pages);
    if (line < static_cast<int>(edits.size()) && edits[line].field)
        edits[line].field->setFocus(Qt::OtherFocusReason);
}

void PendingList::putBack(int line)
{
    const auto edits = editsOf(m_pages);
    if (line >= static_cast<int>(edits.size()) || !edits[line].field)
        return;
    // The line goes away, and the focus with it.
    edits[line].field->setFocus(Qt::OtherFocusReason);
    edits[line].putBack();
}

} // namespace zel
