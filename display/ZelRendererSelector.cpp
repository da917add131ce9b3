#include "ZelRendererSelector.h"

#include "ui_ZelRendererSelector.h"

#include "Accessibility.h"
#include "LabelImage.h"
#include "LanguageFollower.h"

#include "platform/kqMovableObject.h"

#include <QEvent>
#include <QKeyEvent>
#include <QTextDocumentFragment>
#include <QVariant>

#include <algorithm>
#include <iterator>

namespace zel {

namespace {

const char* const SoftwareProperty = "software";

enum Tile { Focused, Low, High };
const struct
{
    int key;
    Tile tile;
} ChoiceKeys[] = {{Qt::Key_Space, Focused}, {Qt::Key_Return, Focused}, {Qt::Key_Enter, Focused},
                  {Qt::Key_Left, Low},      {Qt::Key_Up, Low},         {Qt::Key_Right, High},
                  {Qt::Key_Down, High}};

} // namespace

ZelRendererSelector::ZelRendererSelector(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_ui(new Ui::ZelRendererSelector)
{
    setProperty(SoftwareProperty, false);
    m_ui->setupUi(this);
    showImage(*m_ui->label, ":/menu/Menu/point.png", 8);
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);

    auto* movable = new kqMovableObject(this);
    movable->setAnchorObject(m_ui->titleFrame, this);

    for (QLabel* engine : {m_ui->raytracerButton, m_ui->deferredButton})
        engine->installEventFilter(this);
    announceEngines();
    new LanguageFollower(this, [this] {
        m_ui->retranslateUi(this);
        announceEngines();
    });
    m_ui->okButton->setFocus();
}

ZelRendererSelector::~ZelRendererSelector() = default;

bool ZelRendererSelector::useGPURenderer() const
{
    return !property(SoftwareProperty).toBool();
}

bool ZelRendererSelector::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    static_cast<QWidget*>(watched)->setFocus();
    return choose(watched);
}

void ZelRendererSelector::keyPressEvent(QKeyEvent* event)
{
    QWidget* const tiles[] = {focusWidget(), m_ui->raytracerButton, m_ui->deferredButton};
    const auto* choice = std::find_if(std::begin(ChoiceKeys), std::end(ChoiceKeys),
                                      [&](const auto& each) { return each.key == event->key(); });
    const bool onTile = tiles[Focused] == tiles[Low] || tiles[Focused] == tiles[High];
    if (choice == std::end(ChoiceKeys) || !onTile) {
        QDialog::keyPressEvent(event);
        return;
    }
    QWidget* const engine = tiles[choice->tile];
    engine->setFocus();
    choose(engine);
}

bool ZelRendererSelector::choose(const QObject* engine)
{
    const bool software = engine != m_ui->deferredButton;
    if (property(SoftwareProperty).toBool() == software)
        return false;
    setProperty(SoftwareProperty, software);
    // QStyleSheetStyle evaluates selectors on properties only when the style sheet is set.
    setStyleSheet(styleSheet());
    announceEngines();
    return true;
}

void ZelRendererSelector::announceEngines()
{
    for (QLabel* engine : {m_ui->raytracerButton, m_ui->deferredButton}) {
        const auto text = QTextDocumentFragment::fromHtml(engine->text());
        engine->setAccessibleName(text.toPlainText().simplified());
        announceChoice(*engine, useGPURenderer() == (engine == m_ui->deferredButton));
    }
}

} // namespace zel
