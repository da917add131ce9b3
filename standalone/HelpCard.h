#ifndef ZEL_HELPCARD_H
#define ZEL_HELPCARD_H

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QString>

#include <memory>

namespace Ui {
class HelpCard;
}

namespace zel {

class ZelPageHelp;
struct ZelSettingHelp;

/// The help on one setting: name, description, range, default, stored value and when an edit takes effect.
/// Two buttons put the stored value or the default back, while the setting differs from it.
class HelpCard : public QFrame
{
    Q_OBJECT

public:
    /// Shows a hint until setField() is called. The parent, if any, owns the card.
    explicit HelpCard(QWidget* parent = nullptr);
    ~HelpCard() override;

    /// Shows the help on a field of a page; the hint for null or any other widget.
    void setField(QWidget* field);
    QWidget* field() const { return m_field; }

    /// Makes texts and buttons smaller, for a narrow place.
    void setCompact(bool compact);
    /// The height of what the card shows.
    int neededHeight(int width) const;
    /// That of a card with the longest texts of all pages. A page may be null.
    int heightOfLongest(const QList<QPointer<ZelPageHelp>>& pages, int width) const;

public Q_SLOTS:
    /// Reads what the card shows again, after a value has changed.
    void refresh();

protected:
    /// Elides the name to the new width.
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void on_putBackButton_clicked();
    void on_defaultButton_clicked();

private:
    bool isCompact() const;
    /// Of a wrapped text.
    int textHeight(const QString& text, int width) const;
    /// Shows a help. Returns the height that it takes.
    int heightOf(const ZelSettingHelp& help, int width);
    void showName();
    void showHelp(const ZelSettingHelp& help);

    const std::unique_ptr<Ui::HelpCard> m_ui;
    QPointer<QWidget> m_field;
    QString m_name;
};

} // namespace zel

#endif
