#include "shell/side_bar.h"

#include "shell/main_skin.h"
#include "toolkit/core/clock.h"
#include "toolkit/core/money.h"
#include "toolkit/forms/button.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kaldo {

SideBar::SideBar(QWidget *parent) : QWidget(parent), headerColour_(baseAccent()) {
    setObjectName(QStringLiteral("sideBar"));
    setAttribute(Qt::WA_StyledBackground);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(8, 8, 8, 8);
    rows->setSpacing(10);
    takeWidth();
}

/// Its usual width, or as much more as the figures that it shows need.
void SideBar::takeWidth() {
    const int usual = fontMetrics().averageCharWidth() * 30;
    setFixedWidth(std::max(usual, layout()->totalMinimumSize().width()));
}

bool SideBar::event(QEvent *event) {
    if (event->type() == QEvent::LayoutRequest) {
        takeWidth();
    }
    return QWidget::event(event);
}

void SideBar::ensureBuilt() {
    if (rateGroup_ != nullptr) {
        return;
    }
    auto *rows = static_cast<QVBoxLayout *>(layout());
    rateGroup_ = makeRateGroup();
    deskGroup_ = makeDeskGroup();
    sitesGroup_ = makeSitesGroup();
    for (QWidget *group : {rateGroup_, deskGroup_, sitesGroup_}) {
        rows->addWidget(group);
    }
    rows->addStretch();
    paintHeaders();
}

QWidget *SideBar::makeGroup(const QString &name, const QString &title, QWidget *content) {
    auto *group = new QFrame(this);
    group->setObjectName(name);
    group->setFrameShape(QFrame::StyledPanel);
    group->setBackgroundRole(QPalette::Base);
    group->setAutoFillBackground(true);
    auto *rows = new QVBoxLayout(group);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    auto *header = new QLabel(title, group);
    header->setAutoFillBackground(true);
    header->setBackgroundRole(QPalette::Window);
    header->setForegroundRole(QPalette::WindowText);
    header->setMargin(6);
    QFont bold = header->font();
    bold.setBold(true);
    header->setFont(bold);
    headers_.push_back(header);
    rows->addWidget(header);
    content->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    rows->addWidget(content);
    group->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    return group;
}

QWidget *SideBar::makeRateGroup() {
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rate_ = new QLabel(content);
    rate_->setObjectName(QStringLiteral("rate"));
    QFont large = rate_->font();
    large.setPointSizeF(large.pointSizeF() * 1.7);
    large.setBold(true);
    rate_->setFont(large);
    today_ = new QLabel(content);
    today_->setObjectName(QStringLiteral("rateDate"));
    for (QLabel *label : {rate_, today_}) {
        label->setAlignment(Qt::AlignCenter);
        rows->addWidget(label);
    }
    return makeGroup(QStringLiteral("rateGroup"), QStringLiteral("Tipo de Cambio"), content);
}

QWidget *SideBar::makeDeskGroup() {
    auto *content = new QWidget(this);
    auto *rows = new QFormLayout(content);
    rows->setContentsMargins(10, 8, 10, 10);
    const auto add = [&](const char *column, const QString &caption, bool money) {
        auto *label = new QLabel(content);
        label->setObjectName(QLatin1String("figure_") + QLatin1String(column));
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        figures_.push_back({column, money, label});
        rows->addRow(caption, label);
    };
    add("total", QStringLiteral("Recibos"), false);
    add("cancelados", QStringLiteral("Cancelados"), false);
    add("pesos", QStringLiteral("Pesos"), true);
    add("dolares", QStringLiteral("Dolares"), true);
    add("tarjeta", QStringLiteral("Tarjeta"), true);
    add("voucher", QStringLiteral("Vouchers"), false);
    add("prestacion", QStringLiteral("Prestación"), true);
    return makeGroup(QStringLiteral("deskGroup"), QStringLiteral("Hoy"), content);
}

QWidget *SideBar::makeSitesGroup() {
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    auto *grid = new QTableWidget(3, 2, content);
    grid->setObjectName(QStringLiteral("sitesGrid"));
    grid->setAccessibleName(QStringLiteral("Hoy Valle Norte"));
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setFocusPolicy(Qt::NoFocus);
    grid->setSelectionMode(QAbstractItemView::NoSelection);
    grid->setHorizontalHeaderLabels({QStringLiteral("Sede"), QStringLiteral("Importe")});
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->setWordWrap(false);
    grid->verticalHeader()->hide();
    const QStringList sites{QStringLiteral("Puerto Alto"), QStringLiteral("Valle Norte"),
                            QStringLiteral("Costa Sur")};
    for (int row = 0; row < sites.size(); ++row) {
        grid->setItem(row, 0, new QTableWidgetItem(sites[row]));
    }
    grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    grid->setFixedHeight(grid->horizontalHeader()->sizeHint().height() +
                         3 * grid->verticalHeader()->defaultSectionSize() + 2 * grid->frameWidth());
    rows->addWidget(grid);
    auto *refresh = new Button(content);
    refresh->setObjectName(QStringLiteral("BitBtn1"));
    refresh->setText(QStringLiteral("&Actualizar"));
    refresh->setShortcut({});  // the letter is that of the heading "Archivo"
    refresh->setIconName(QStringLiteral("refresh"));
    refresh->setFocusPolicy(Qt::NoFocus);
    rows->addWidget(refresh);
    return makeGroup(QStringLiteral("sitesGroup"), QStringLiteral("Hoy Valle Norte"), content);
}

void SideBar::setGroups(bool rate, bool desk, bool sites) {
    if (rateGroup_ == nullptr && !rate && !desk && !sites) {
        return;
    }
    ensureBuilt();
    rateGroup_->setVisible(rate);
    deskGroup_->setVisible(desk);
    sitesGroup_->setVisible(sites);
}

void SideBar::setRate(const QString &rate, const QDate &today) {
    ensureBuilt();
    rate_->setText(rate);
    today_->setText(formatDate(today));
}

void SideBar::setFigures(const std::function<QVariant(const QString &column)> &figure) {
    ensureBuilt();
    for (const Figure &row : figures_) {
        const QVariant value = figure(QString::fromLatin1(row.column));
        row.label->setText(row.money ? formatMoney(value.toDouble())
                                     : QString::number(value.toLongLong()));
    }
}

void SideBar::setHeaderColour(const QColor &colour) {
    headerColour_ = colour;
    paintHeaders();
}

void SideBar::paintHeaders() {
    for (QLabel *header : headers_) {
        QPalette palette = header->palette();
        palette.setColor(QPalette::Window, headerColour_);
        palette.setColor(QPalette::WindowText, Qt::white);
        header->setPalette(palette);
    }
}

}  // namespace kaldo
