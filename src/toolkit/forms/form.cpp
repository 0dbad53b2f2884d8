#include "toolkit/forms/form.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace kaldo::form {

namespace {

constexpr int kMargin = 12;
constexpr int kAcross = 8;
constexpr int kDown = 7;

/// A caption: it hides and greys with its field.
class Caption : public QLabel {
public:
    Caption(const QString &text, QWidget *field) : QLabel(text, field->parentWidget()) {
        setBuddy(field->focusProxy() ? field->focusProxy() : field);
        setObjectName(field->objectName() + QStringLiteral("_label"));
        setVisible(!field->isHidden());
        setEnabled(field->isEnabledTo(field->parentWidget()));
        field->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        auto *field = static_cast<QWidget *>(watched);
        switch (event->type()) {
            case QEvent::ShowToParent:
            case QEvent::HideToParent:
                setVisible(!field->isHidden());
                break;
            case QEvent::EnabledChange:
                setEnabled(field->isEnabledTo(parentWidget()));
                break;
            default:
                break;
        }
        return QLabel::eventFilter(watched, event);
    }
};

struct Made {
    QWidget *widget = nullptr;
    Caption *caption = nullptr;
};

Made make(const Node &node, QWidget *parent) {
    Made made;
    made.widget = node.make(parent);
    made.widget->setObjectName(node.name);
    for (const auto &setting : node.settings) {
        setting(made.widget);
    }
    QString spoken = node.accessible.isEmpty() ? node.label : node.accessible;
    if (!spoken.isEmpty()) {
        made.widget->setAccessibleName(spoken.remove(QLatin1Char('&')));
    }
    if (!node.label.isEmpty()) {
        made.caption = new Caption(node.label, made.widget);
    }
    return made;
}

bool growsSideways(const Node &node, const QWidget *widget) {
    return node.fillWidth ||
           (node.grow && widget->sizePolicy().verticalPolicy() == QSizePolicy::Fixed);
}

Qt::Alignment alignmentOf(const Node &node, const QWidget *widget) {
    const QSizePolicy::Policy policy = widget->sizePolicy().horizontalPolicy();
    const bool narrow = policy == QSizePolicy::Maximum || policy == QSizePolicy::Fixed ||
                        qobject_cast<const QPushButton *>(widget);
    return narrow && !growsSideways(node, widget) ? Qt::AlignLeft | Qt::AlignVCenter
                                                  : Qt::Alignment();
}

void letGrow(const Node &node, QWidget *widget) {
    if (growsSideways(node, widget) || node.grow) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setHorizontalPolicy(QSizePolicy::Expanding);
        if (!growsSideways(node, widget)) {
            policy.setVerticalPolicy(QSizePolicy::Expanding);
        }
        widget->setSizePolicy(policy);
    }
}

QLayout *rowLayout(const Node &node, QWidget *parent, QLabel **firstLabel = nullptr);
QLayout *columnLayout(const Node &node, QWidget *parent);

void addToRow(QHBoxLayout *line, const Node &node, const Made &made, bool above) {
    const int share = node.grow ? 1 : 0;
    letGrow(node, made.widget);
    if (made.caption && above) {
        auto *pair = new QVBoxLayout;
        pair->setSpacing(2);
        pair->addWidget(made.caption);
        pair->addWidget(made.widget, 0, alignmentOf(node, made.widget));
        line->addLayout(pair, share);
        return;
    }
    if (made.caption) {
        line->addWidget(made.caption);
    }
    const Qt::Alignment low = above && !made.caption ? Qt::AlignBottom : Qt::Alignment();
    line->addWidget(made.widget, share, low);
}

/// `firstLabel`, where given, takes the caption of the first field out of the row.
QLayout *rowLayout(const Node &node, QWidget *parent, QLabel **firstLabel) {
    auto *line = new QHBoxLayout;
    line->setSpacing(kAcross);
    bool first = true;
    bool grows = false;
    for (const Item &item : node.children) {
        const Node &child = item.node();
        grows = grows || child.grow || child.kind == Node::Kind::Stretch;
        switch (child.kind) {
            case Node::Kind::Stretch:
                line->addStretch(1);
                break;
            case Node::Kind::Row:
                line->addLayout(rowLayout(child, parent), child.grow ? 1 : 0);
                break;
            case Node::Kind::Column:
                line->addLayout(columnLayout(child, parent), 1);
                grows = true;
                break;
            case Node::Kind::Widget: {
                Made made = make(child, parent);
                const bool above = child.labelAbove || node.labelsAbove;
                if (first && firstLabel && made.caption && !above) {
                    *firstLabel = std::exchange(made.caption, nullptr);
                }
                addToRow(line, child, made, above);
                const QSizePolicy policy = made.widget->sizePolicy();
                grows = grows || (policy.horizontalPolicy() & QSizePolicy::ExpandFlag);
                break;
            }
        }
        first = false;
    }
    if (!grows) {
        line->addStretch(1);
    }
    return line;
}

void addToColumn(QGridLayout *table, int at, const Node &node, const Made &made) {
    const Qt::Alignment alignment = alignmentOf(node, made.widget);
    letGrow(node, made.widget);
    if (node.grow && !growsSideways(node, made.widget)) {
        table->setRowStretch(at, 1);
    }
    if (made.caption && node.labelAbove) {
        auto *pair = new QVBoxLayout;
        pair->setSpacing(2);
        pair->addWidget(made.caption);
        pair->addWidget(made.widget, 1, alignment);
        table->addLayout(pair, at, 0, 1, 2);
    } else if (made.caption) {
        const bool tall = made.widget->sizePolicy().verticalPolicy() != QSizePolicy::Fixed;
        made.caption->setContentsMargins(0, tall ? 4 : 0, 0, 0);
        table->addWidget(made.caption, at, 0, tall ? Qt::AlignTop : Qt::AlignVCenter);
        table->addWidget(made.widget, at, 1, alignment);
    } else {
        table->addWidget(made.widget, at, 0, 1, 2, alignment);
    }
}

QLayout *columnLayout(const Node &node, QWidget *parent) {
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(kAcross + 2);
    table->setVerticalSpacing(kDown);
    table->setColumnStretch(1, 1);
    int at = 0;
    for (const Item &item : node.children) {
        const Node &child = item.node();
        switch (child.kind) {
            case Node::Kind::Stretch:
                table->setRowStretch(at, 1);
                break;
            case Node::Kind::Row: {
                QLabel *caption = nullptr;
                QLayout *line = rowLayout(child, parent, &caption);
                if (caption) {
                    table->addWidget(caption, at, 0, Qt::AlignVCenter);
                    table->addLayout(line, at, 1);
                } else {
                    table->addLayout(line, at, 0, 1, 2);
                }
                break;
            }
            case Node::Kind::Column:
                table->addLayout(columnLayout(child, parent), at, 0, 1, 2);
                break;
            case Node::Kind::Widget:
                addToColumn(table, at, child, make(child, parent));
                break;
        }
        ++at;
    }
    return table;
}

Item composed(Node::Kind kind, std::initializer_list<Item> items, bool labelsAbove = false) {
    auto node = std::make_shared<Node>();
    node->kind = kind;
    node->children = items;
    node->labelsAbove = labelsAbove;
    return Item(node);
}

QLayout *layoutOf(const Item &content, QWidget *host) {
    const Node &node = content.node();
    if (node.kind == Node::Kind::Row) {
        return rowLayout(node, host);
    }
    if (node.kind == Node::Kind::Column) {
        return columnLayout(node, host);
    }
    return columnLayout(composed(Node::Kind::Column, {content}).node(), host);
}

void fill(QWidget *host, const Item &content, int margin) {
    QLayout *layout = layoutOf(content, host);
    layout->setContentsMargins(margin, margin, margin, margin);
    host->setLayout(layout);
}

template <typename W>
WidgetItem<W> container(W **where, const QString &name, std::function<void(W *)> fillIn) {
    auto node = std::make_shared<Node>();
    node->name = name;
    node->fillWidth = true;
    node->make = [where, fillIn = std::move(fillIn)](QWidget *parent) -> QWidget * {
        auto *widget = new W(parent);
        if (where) {
            *where = widget;
        }
        fillIn(widget);
        return widget;
    };
    return WidgetItem<W>(node);
}

}  // namespace

WidgetItem<RadioGroup> radio(RadioGroup **where, const QString &name, const QString &caption) {
    WidgetItem<RadioGroup> item = custom(where, name);
    item.accessible(caption).with([caption](RadioGroup *group) { group->setTitle(caption); });
    return item;
}

WidgetItem<CheckField> check(CheckField **where, const QString &name, const QString &caption) {
    WidgetItem<CheckField> item = custom(where, name);
    item.accessible(caption).with([caption](CheckField *box) { box->setText(caption); });
    return item;
}

WidgetItem<Button> button(Button **where, const QString &name, const QString &caption) {
    WidgetItem<Button> item = custom(where, name);
    item.accessible(caption).with([caption](Button *made) { made->setText(caption); });
    return item;
}

WidgetItem<IconButton> iconButton(IconButton **where, const QString &name, const QString &caption,
                                  const QString &icon) {
    WidgetItem<IconButton> item = custom(where, name);
    item.accessible(caption).hint(QString(caption).remove(QLatin1Char('&')));
    item.with([caption, icon](IconButton *made) {
        made->setText(caption);
        made->setIconName(icon);
    });
    return item;
}

WidgetItem<QLabel> label(const QString &text) {
    return label(nullptr, QString(), text);
}

WidgetItem<QLabel> label(QLabel **where, const QString &name, const QString &text) {
    WidgetItem<QLabel> item = custom(where, name);
    item.with([text](QLabel *made) {
        made->setTextFormat(Qt::PlainText);
        made->setText(text);
    });
    return item;
}

Item row(std::initializer_list<Item> items) {
    return composed(Node::Kind::Row, items);
}

Item rowAbove(std::initializer_list<Item> items) {
    return composed(Node::Kind::Row, items, true);
}

Item column(std::initializer_list<Item> items) {
    return composed(Node::Kind::Column, items);
}

Item stretch() {
    auto node = std::make_shared<Node>();
    node->kind = Node::Kind::Stretch;
    return Item(node);
}

Item line() {
    WidgetItem<QFrame> item = custom<QFrame>(nullptr, QString());
    item.fill().with([](QFrame *frame) {
        frame->setFrameShape(QFrame::HLine);
        frame->setFrameShadow(QFrame::Sunken);
    });
    return item;
}

WidgetItem<QWidget> strip(QWidget **where, const QString &name, std::initializer_list<Item> items) {
    return panel(where, name, row(items));
}

WidgetItem<QWidget> panel(QWidget **where, const QString &name, const Item &content) {
    return container<QWidget>(where, name,
                              [content](QWidget *widget) { form::fill(widget, content, 0); });
}

WidgetItem<QGroupBox> group(QGroupBox **where, const QString &name, const QString &title,
                            const Item &content) {
    return container<QGroupBox>(where, name, [content, title](QGroupBox *box) {
        box->setTitle(title);
        form::fill(box, content, kMargin * 2 / 3);
    });
}

WidgetItem<QTabWidget> pages(QTabWidget **where, const QString &name,
                             std::initializer_list<Page> list) {
    const std::vector<Page> all = list;
    return container<QTabWidget>(where, name, [all](QTabWidget *tabs) {
        for (const Page &page : all) {
            auto *sheet = new QWidget(tabs);
            sheet->setObjectName(page.name);
            form::fill(sheet, page.content, kMargin);
            tabs->addTab(sheet, page.title);
        }
    });
}

void build(QWidget *host, const Item &form) {
    form::fill(host, form, kMargin);
}

}  // namespace kaldo::form
