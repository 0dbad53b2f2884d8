#pragma once

#include "toolkit/forms/application.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/choice.h"
#include "toolkit/forms/data_grid.h"
#include "toolkit/forms/date_field.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/line_field.h"
#include "toolkit/forms/lookup_field.h"
#include "toolkit/forms/money_field.h"

#include <QLabel>
#include <QTabWidget>

#include <concepts>
#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

/// A form as one expression:
///
///     using namespace form;
///     build(this, column({
///         text(&Edit2_, "Edit2", "Expediente").upper().width(8)
///             .key(Qt::Key_F5, [this] { consultarExpedientes(); })
///             .enter([this] { buscarExpediente(); }),
///         strip(&Panel3_, "Panel3", {
///             text(&Edit3_, "Edit3", "Paterno").upper().width(40).grow(),
///             text(&Edit4_, "Edit4", "Materno").upper().width(40).grow(),
///         }).disabled(),
///         row({stretch(), button(&BitBtn1_, "BitBtn1", "&Registrar Información").icon("save")
///                             .clicked([this] { registrarNota(); })}),
///     }));
///
/// Widgets are created by build(), as children of the host, in the order of the expression, which
/// is also the tab order. The first argument is where the pointer goes (it may be null where nobody
/// needs it), the second the objectName, the third the caption. A caption makes a label with the
/// field as buddy; it hides and greys with its field, and is the accessible name too.
///
/// In a column() the labels stand in a column of their own, and a row() in it gives the label of
/// its first field to that column. Elsewhere a label stands left of its field, or above it with
/// above().
namespace kaldo::form {

class Item;

/// What an Item describes; private to the builder.
struct Node {
    enum class Kind { Widget, Row, Column, Stretch };

    Kind kind = Kind::Widget;
    std::function<QWidget *(QWidget *parent)> make;
    std::vector<std::function<void(QWidget *)>> settings;
    std::vector<Item> children;
    QString name;
    QString label;
    QString accessible;
    bool labelAbove = false;
    bool labelsAbove = false;
    bool grow = false;
    bool fillWidth = false;
};

/// A piece of a form that is not yet built; a cheap value.
class Item {
public:
    explicit Item(std::shared_ptr<Node> node) : node_(std::move(node)) {}
    const Node &node() const { return *node_; }

protected:
    Node &change() { return *node_; }

private:
    std::shared_ptr<Node> node_;
};

template <typename W>
concept IsField = std::derived_from<W, Field>;

/// A widget that will be; its methods are settings, and those exist that its kind understands.
template <typename W>
class WidgetItem : public Item {
public:
    using Self = WidgetItem<W>;
    using Handler = std::function<void()>;
    using Item::Item;

    /// Anything else: runs on the new widget, in order with the other settings.
    Self &with(std::function<void(W *)> setting) {
        change().settings.push_back(
            [setting = std::move(setting)](QWidget *widget) { setting(static_cast<W *>(widget)); });
        return *this;
    }
    /// Tool tip, and what a screen reader tells beyond the name.
    Self &hint(const QString &text) {
        return with([text](W *widget) {
            widget->setToolTip(text);
            widget->setAccessibleDescription(text);
        });
    }
    /// The accessible name of a widget that has no caption.
    Self &accessible(const QString &name) {
        change().accessible = name;
        return *this;
    }
    Self &disabled() {
        return with([](W *widget) { widget->setEnabled(false); });
    }
    Self &hidden() {
        return with([](W *widget) { widget->setVisible(false); });
    }
    /// Takes the width (in a row) or the height (in a column) that is left.
    Self &grow() {
        change().grow = true;
        return *this;
    }
    /// In a column, over its whole width instead of the natural one.
    Self &fill() {
        change().fillWidth = true;
        return *this;
    }
    /// The label above the field rather than beside it.
    Self &above() {
        change().labelAbove = true;
        return *this;
    }
    /// The way out: see markAsEscape().
    Self &escape() {
        return with([](W *widget) { markAsEscape(widget); });
    }

    Self &enter(Handler handler) requires IsField<W> {
        return with([handler](W *widget) { widget->setEnterHandler(handler); });
    }
    Self &leave(Handler handler) requires IsField<W> {
        return with([handler](W *widget) { widget->setLeaveHandler(handler); });
    }
    Self &arrive(Handler handler) requires IsField<W> {
        return with([handler](W *widget) { widget->setArriveHandler(handler); });
    }
    Self &key(int key, Handler handler) requires IsField<W> {
        return with([key, handler](W *widget) { widget->setKeyHandler(key, handler); });
    }
    Self &readOnly() requires IsField<W> {
        return with([](W *widget) { widget->setFieldReadOnly(true); });
    }
    /// What can be typed, in characters; also the size where shown() tells none.
    Self &width(int characters) requires requires(W *widget) { widget->setCharacters(1); }
    {
        return with([characters](W *widget) { widget->setCharacters(characters); });
    }
    /// What can be seen, in characters.
    Self &shown(int characters) requires requires(W *widget) { widget->setShownCharacters(1); }
    {
        return with([characters](W *widget) { widget->setShownCharacters(characters); });
    }
    Self &upper() requires requires(W *widget) { widget->setUpperCase(true); }
    {
        return with([](W *widget) { widget->setUpperCase(true); });
    }
    Self &lower() requires requires(W *widget) { widget->setLowerCase(true); }
    {
        return with([](W *widget) { widget->setLowerCase(true); });
    }
    Self &digits() requires requires(W *widget) { widget->setDigitsOnly(); }
    {
        return with([](W *widget) { widget->setDigitsOnly(); });
    }
    Self &password() requires requires(W *widget) { widget->setPassword(true); }
    {
        return with([](W *widget) { widget->setPassword(true); });
    }
    /// Each change by the user or the program.
    Self &changed(std::function<void()> handler) requires std::derived_from<W, QLineEdit> {
        return with([handler](W *widget) {
            connectGuarded(widget, &QLineEdit::textChanged, widget, handler);
        });
    }
    /// Each change by the user's own typing.
    Self &edited(std::function<void()> handler) requires std::derived_from<W, QLineEdit> {
        return with([handler](W *widget) {
            connectGuarded(widget, &QLineEdit::textEdited, widget, handler);
        });
    }
    Self &changed(std::function<void()> handler) requires std::same_as<W, Memo> {
        return with([handler](W *widget) {
            connectGuarded(widget, &QPlainTextEdit::textChanged, widget, handler);
        });
    }
    Self &lines(int count) requires std::same_as<W, Memo> {
        return with([count](W *widget) { widget->setLines(count); });
    }
    Self &range(qint64 lowest, qint64 highest) requires std::same_as<W, NumberField> {
        return with([=](W *widget) { widget->setRange(lowest, highest); });
    }
    /// The mask of digits of a MaskedField.
    Self &mask(const QString &text) requires std::same_as<W, MaskedField> {
        return with([text](W *widget) { widget->setMask(text); });
    }
    Self &mask(MoneyMask mask) requires std::same_as<W, MoneyField> {
        return with([mask](W *widget) { widget->setMask(mask); });
    }
    Self &invalid(
        std::function<void(const QString &)> handler) requires std::same_as<W, DateField> {
        return with([handler](W *widget) { widget->setInvalidHandler(handler); });
    }
    Self &items(const QStringList &items) requires std::same_as<W, Choice> {
        return with([items](W *widget) { widget->setItems(items); });
    }
    Self &options(const QStringList &options, Qt::Orientation orientation = Qt::Horizontal) requires
        std::same_as<W, RadioGroup> {
        return with([=](W *widget) { widget->setOptions(options, orientation); });
    }
    Self &source(const LookupSource &source) requires std::same_as<W, LookupField> {
        return with([source](W *widget) { widget->setSource(source); });
    }
    Self &closedUp(
        Handler handler) requires std::same_as<W, Choice> || std::same_as<W, LookupField> {
        return with(
            [handler](W *widget) { connectGuarded(widget, &W::closedUp, widget, handler); });
    }
    Self &cancelled(Handler handler) requires std::same_as<W, LookupField> {
        return with(
            [handler](W *widget) { connectGuarded(widget, &W::cancelled, widget, handler); });
    }
    Self &clicked(std::function<void(int index)> handler) requires std::same_as<W, RadioGroup> {
        return with([handler](W *widget) {
            connectGuarded(widget, &RadioGroup::clicked, widget, handler);
        });
    }
    /// A press by the user; never fired by setChecked().
    Self &clicked(Handler handler) requires std::derived_from<W, QAbstractButton> {
        return with([handler](W *widget) {
            connectGuarded(widget, &QAbstractButton::clicked, widget, handler);
        });
    }
    Self &icon(const QString &name) requires requires(W *widget) { widget->setIconName(QString()); }
    {
        return with([name](W *widget) { widget->setIconName(name); });
    }
    Self &columns(const QList<GridColumn> &columns) requires std::same_as<W, DataGrid> {
        return with([columns](W *widget) { widget->setColumns(columns); });
    }
    Self &enterColumn(
        std::function<void(const QString &field)> handler) requires std::same_as<W, DataGrid> {
        return with([handler](W *widget) { widget->setColumnEnterHandler(handler); });
    }
    /// Pixels are never given: the title of a heading is larger than a label and stands out.
    Self &heading() requires std::same_as<W, QLabel> {
        return with([](W *widget) { markAsHeading(widget); });
    }
    Self &bold() requires std::same_as<W, QLabel> {
        return with([](W *widget) {
            QFont font = widget->font();
            font.setBold(true);
            widget->setFont(font);
        });
    }
    /// Breaks long text over lines instead of widening the form.
    Self &wrap() requires std::same_as<W, QLabel> {
        return with([](W *widget) { widget->setWordWrap(true); });
    }

private:
    static void markAsHeading(QLabel *label) {
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * 1.25);
        font.setBold(true);
        label->setFont(font);
    }
};

/// Any widget of ours or of Qt that is made with a parent: custom<QProgressBar>(&bar_, "Bar1").
template <typename W>
WidgetItem<W> custom(W **where, const QString &name, const QString &caption = {}) {
    auto node = std::make_shared<Node>();
    node->name = name;
    node->label = caption;
    node->make = [where](QWidget *parent) -> QWidget * {
        auto *widget = new W(parent);
        if (where) {
            *where = widget;
        }
        return widget;
    };
    return WidgetItem<W>(node);
}

inline auto text(TextField **where, const QString &name, const QString &caption = {}) {
    return custom(where, name, caption);
}
inline auto number(NumberField **where, const QString &name, const QString &caption = {}) {
    return custom(where, name, caption);
}
inline auto masked(MaskedField **where, const QString &name, const QString &caption = {}) {
    return custom(where, name, caption);
}
inline auto money(MoneyField **where, const QString &name, const QString &caption = {}) {
    return custom(where, name, caption);
}
inline auto date(DateField **where, const QString &name, const QString &caption = {}) {
    return custom(where, name, caption);
}
inline auto memo(Memo **where, const QString &name, const QString &caption = {}) {
    return custom(where, name, caption);
}
inline auto choice(Choice **where, const QString &name, const QString &caption = {}) {
    return custom(where, name, caption);
}
inline auto lookup(LookupField **where, const QString &name, const QString &caption = {}) {
    return custom(where, name, caption);
}
inline auto grid(DataGrid **where, const QString &name, const QString &caption = {}) {
    return custom(where, name, caption);
}
/// The caption is the title of the box.
WidgetItem<RadioGroup> radio(RadioGroup **where, const QString &name, const QString &caption);
/// The caption is the text beside the box.
WidgetItem<CheckField> check(CheckField **where, const QString &name, const QString &caption);
WidgetItem<Button> button(Button **where, const QString &name, const QString &caption);
/// Shows its icon alone; the caption is its hint and accessible name.
WidgetItem<IconButton> iconButton(IconButton **where, const QString &name, const QString &caption,
                                  const QString &icon);

/// A text on the form: a heading, a value that the program sets, a caption of its own.
WidgetItem<QLabel> label(const QString &text);
WidgetItem<QLabel> label(QLabel **where, const QString &name, const QString &text = {});

Item row(std::initializer_list<Item> items);
/// A row whose labels stand above their fields.
Item rowAbove(std::initializer_list<Item> items);
Item column(std::initializer_list<Item> items);
/// Space that takes what is left.
Item stretch();
/// A thin line across.
Item line();

/// Items in a row that are enabled, disabled, shown and hidden as one: a panel without a frame.
WidgetItem<QWidget> strip(QWidget **where, const QString &name, std::initializer_list<Item> items);
/// A panel with any content, most often a column().
WidgetItem<QWidget> panel(QWidget **where, const QString &name, const Item &content);
/// The same with a frame and a title.
WidgetItem<QGroupBox> group(QGroupBox **where, const QString &name, const QString &title,
                            const Item &content);

struct Page {
    QString name;
    QString title;
    Item content;
};
WidgetItem<QTabWidget> pages(QTabWidget **where, const QString &name,
                             std::initializer_list<Page> pages);

/// Fills a host that has no layout yet. The host owns all that is made.
void build(QWidget *host, const Item &form);

}  // namespace kaldo::form
