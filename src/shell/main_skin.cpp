#include "shell/main_skin.h"

#include "toolkit/forms/button.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionHeader>
#include <QStyleOptionMenuItem>

#include <array>
#include <stdexcept>

namespace kaldo {

namespace {

/// The schemes' colours are written blue-green-red.
QColor fromBgr(quint32 bgr) {
    return QColor(bgr & 0xff, (bgr >> 8) & 0xff, (bgr >> 16) & 0xff);
}

/// Converts a date that stands in the program as a text.
QDate literalDate(const QString &text) {
    const QDate date = QDate::fromString(text, QStringLiteral("dd/MM/yyyy"));
    if (!date.isValid()) {
        throw std::invalid_argument(
            QStringLiteral("'%1' no es una fecha válida.").arg(text).toStdString());
    }
    return date;
}

bool between(const QDate &day, const QString &first, const QString &last) {
    return day >= literalDate(first) && day <= literalDate(last);
}

const QColor kInk(0x1e, 0x29, 0x3b);

/// Fusion with a flat tool bar and quiet flat headers on all grids, in the scheme's colour where
/// there is one.
class KaldoStyle : public QProxyStyle {
public:
    KaldoStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    /// An invalid colour is none.
    void setHeader(const QColor &colour) { header_ = colour; }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override {
        if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
            painter->fillRect(option->rect, header_.isValid() ? header_ : kHeader);
            painter->setPen(header_.isValid() ? header_.lighter(130) : kHeaderLine);
            if (element == CE_HeaderSection) {
                painter->drawLine(option->rect.topRight(), option->rect.bottomRight());
            }
            painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
            return;
        }
        if (element == CE_HeaderLabel) {
            if (const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option)) {
                QStyleOptionHeader label = *header;
                label.rect.adjust(kCellMargin, 0, -kCellMargin, 0);
                if (header_.isValid()) {
                    label.palette.setColor(QPalette::ButtonText, Qt::white);
                }
                QProxyStyle::drawControl(element, &label, painter, widget);
                return;
            }
        }
        if (element == CE_MenuBarItem && (option->state & State_Selected)) {
            // Fusion shows the heading only where its menu is open: not where Alt alone has led to.
            auto heading = *static_cast<const QStyleOptionMenuItem *>(option);
            heading.state |= State_Sunken;
            QProxyStyle::drawControl(element, &heading, painter, widget);
            return;
        }
        if (element == CE_ToolBar) {
            // Fusion's translucent lines are blended dot by dot, by threads of their own.
            QRect line = option->rect;
            line.setTop(line.bottom());
            painter->fillRect(line, kHeaderLine);
            return;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    QIcon standardIcon(StandardPixmap which, const QStyleOption *option,
                       const QWidget *widget) const override {
        // Every menu bar and tool bar asks for it, also those that have room for all they hold.
        if (which == SP_ToolBarHorizontalExtensionButton) {
            return iconNamed(QStringLiteral("more"));
        }
        return QProxyStyle::standardIcon(which, option, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override {
        const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
        const bool cell = metric == PM_FocusFrameHMargin &&
                          qobject_cast<const QAbstractItemView *>(widget) != nullptr;
        return cell ? pixels + kCellMargin : pixels;
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override {
        QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return type == CT_HeaderSection ? size.grownBy({kCellMargin, 0, kCellMargin, 0}) : size;
    }

private:
    /// More air beside the texts of grids, so that a number and the text after it stand apart.
    static constexpr int kCellMargin = 2;
    static inline const QColor kHeader{0xe6, 0xec, 0xf0};
    static inline const QColor kHeaderLine{0xcb, 0xd5, 0xdc};

    QColor header_;
};

QPalette basePalette() {
    QPalette palette(QColor(0xf1, 0xf4, 0xf6));
    palette.setColor(QPalette::Window, QColor(0xf4, 0xf6, 0xf8));
    palette.setColor(QPalette::WindowText, kInk);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf3, 0xf7, 0xf9));
    palette.setColor(QPalette::Text, kInk);
    palette.setColor(QPalette::Button, QColor(0xe9, 0xee, 0xf2));
    palette.setColor(QPalette::ButtonText, kInk);
    palette.setColor(QPalette::Highlight, baseAccent());
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfb, 0xe6));
    palette.setColor(QPalette::ToolTipText, kInk);
    palette.setColor(QPalette::PlaceholderText, QColor(0x94, 0xa3, 0xb8));
    // What a disabled field holds is still read.
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x6f, 0x7b, 0x89));
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, palette.color(QPalette::Window));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xcb, 0xd5, 0xe1));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, kInk);
    return palette;
}

/// Lists and grids: the marked row is strong only where the keys go.
QPalette viewPalette(const QColor &selected, const QColor &text) {
    QPalette palette = basePalette();
    palette.setColor(QPalette::Active, QPalette::Highlight, selected);
    palette.setColor(QPalette::Active, QPalette::HighlightedText, text);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xdd, 0xe4, 0xea));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, kInk);
    return palette;
}

}  // namespace

const ColourScheme *schemeNamed(const QString &name) {
    const auto scheme = [](const char *title, quint32 color, quint32 select, quint32 caption,
                           quint32 link, const QString &stem, const QString &december,
                           const QString &assistance) {
        const QString png = QStringLiteral(".png");
        return ColourScheme{QString::fromLatin1(title),
                            fromBgr(color),
                            fromBgr(select),
                            fromBgr(caption),
                            fromBgr(link),
                            stem + png,
                            stem + QStringLiteral("_sep") + png,
                            december + png,
                            assistance + QStringLiteral("_asist1") + png,
                            stem + QStringLiteral("_teleg") + png};
    };
    static const std::array<ColourScheme, 3> schemes = {
        scheme("KaldoBlack", 0x585858, 0xdae2d3, 0x555555, 0xbee4f6, QStringLiteral("kaldoblk"),
               QStringLiteral("kaldodic"), QStringLiteral("kaldoblk")),
        scheme("KaldoBlue", 0xd77800, 0xfecfa0, 0xffffff, 0xfbca8c, QStringLiteral("kaldoblu"),
               QStringLiteral("kaldodic"), QStringLiteral("kaldoblu")),
        scheme("KaldoGreen", 0x566649, 0xdae2d3, 0x555555, 0xd1d8cb, QStringLiteral("kaldogre"),
               QStringLiteral("kaldogre_dic"), QStringLiteral("kaldoblk")),
    };
    for (const ColourScheme &candidate : schemes) {
        if (candidate.name == name) {
            return &candidate;
        }
    }
    return nullptr;
}

QString pictureOf(const ColourScheme &scheme, const QDate &today) {
    if (between(today, QStringLiteral("01/09/2024"), QStringLiteral("31/09/2024"))) {
        return scheme.septemberPicture;
    }
    if (between(today, QStringLiteral("01/12/2024"), QStringLiteral("31/12/2024"))) {
        return scheme.decemberPicture;
    }
    return scheme.picture;
}

QString pictureStem(const QString &skinLibrary) {
    const QString file = skinLibrary.section(u'\\', -1).section(u'/', -1).toLower();
    if (file == QLatin1String("skinblue.dll")) {
        return QStringLiteral("kaldoblu");
    }
    if (file == QLatin1String("skinblack.dll")) {
        return QStringLiteral("kaldoblk");
    }
    if (file == QLatin1String("skingreen.dll")) {
        return QStringLiteral("kaldogre");
    }
    return {};
}

const ColourScheme *schemeOfPicture(const QString &stem) {
    for (const char *name : {"KaldoBlack", "KaldoBlue", "KaldoGreen"}) {
        const ColourScheme *scheme = schemeNamed(QString::fromLatin1(name));
        if (scheme->picture == stem + QStringLiteral(".png")) {
            return scheme;
        }
    }
    return nullptr;
}

QColor baseAccent() {
    return QColor(0x0f, 0x76, 0x6e);
}

void applyBaseLook() {
    QApplication::setStyle(new KaldoStyle);
    QApplication::setPalette(basePalette());
    QApplication::setPalette(viewPalette(baseAccent(), Qt::white), "QAbstractItemView");
}

void applyScheme(const ColourScheme &scheme) {
    if (auto *style = dynamic_cast<KaldoStyle *>(QApplication::style())) {
        style->setHeader(scheme.kaldoColor);
    }
    QPalette palette = basePalette();
    palette.setColor(QPalette::Highlight, scheme.kaldoColor);
    palette.setColor(QPalette::Link, scheme.kaldoColor);
    QApplication::setPalette(palette);
    // Rows are selected in the pale colour; the focus keeps the strong one.
    QApplication::setPalette(viewPalette(scheme.kaldoSelect, kInk), "QAbstractItemView");
}

}  // namespace kaldo
