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

#include <algorithm>
#include <array>
#include <cmath>
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
constexpr double kReadable = 4.5;

const QColor kDarkLine(0x6c, 0x76, 0x82);

void paintTick(const QStyleOption &option, QPainter *painter);
void paintRadio(const QStyleOption &option, QPainter *painter);

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
            painter->fillRect(line, header_.isValid() ? header_ : kHeaderLine);
            return;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override {
        const bool dark = option->palette.color(QPalette::Window).lightness() < 128;
        if (element == PE_IndicatorItemViewItemCheck || (dark && element == PE_IndicatorCheckBox)) {
            paintTick(*option, painter);
            return;
        }
        if (dark && element == PE_IndicatorRadioButton) {
            paintRadio(*option, painter);
            return;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (dark && (element == PE_FrameLineEdit || element == PE_Frame)) {
            // Fusion's own line is darker than the ground, where it can't be seen.
            painter->setPen(kDarkLine);
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        }
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

/// The colours of a look: grounds, and what is written on them.
struct Ground {
    QColor button, window, base, alternate, ink, faint, disabled, placeholder, muted;
};

const Ground kLight{
    {0xe9, 0xee, 0xf2}, {0xf4, 0xf6, 0xf8}, {0xff, 0xff, 0xff}, {0xf3, 0xf7, 0xf9}, kInk,
    {0xcb, 0xd5, 0xe1}, {0x63, 0x6e, 0x7b}, {0x6b, 0x7a, 0x8f}, {0xdd, 0xe4, 0xea}};
const Ground kDark{{0x3d, 0x43, 0x4b}, {0x2a, 0x2e, 0x34}, {0x1f, 0x22, 0x27},
                   {0x26, 0x2a, 0x30}, {0xe8, 0xeb, 0xef}, {0x4a, 0x52, 0x5c},
                   {0xa3, 0xab, 0xb5}, {0x9a, 0xa3, 0xae}, {0x4a, 0x52, 0x5c}};

/// The same colour, deep enough for letters of it on a light ground, or for such letters on it.
QColor deepEnough(QColor colour, const QColor &light) {
    while (contrast(light, colour) < kReadable) {
        colour = colour.darker(104);
    }
    return colour;
}

QPalette paletteOf(const Ground &ground, const QColor &highlight, const QColor &highlighted) {
    QPalette palette(ground.button);
    palette.setColor(QPalette::Window, ground.window);
    palette.setColor(QPalette::WindowText, ground.ink);
    palette.setColor(QPalette::Base, ground.base);
    palette.setColor(QPalette::AlternateBase, ground.alternate);
    palette.setColor(QPalette::Text, ground.ink);
    palette.setColor(QPalette::Button, ground.button);
    palette.setColor(QPalette::ButtonText, ground.ink);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, highlighted);
    palette.setColor(QPalette::Link, ground.window.lightness() < 128
                                         ? highlight
                                         : deepEnough(highlight, ground.window));
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfb, 0xe6));
    palette.setColor(QPalette::ToolTipText, kInk);
    palette.setColor(QPalette::PlaceholderText, ground.placeholder);
    // What a disabled field holds is still read.
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, ground.disabled);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, ground.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, ground.faint);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, ground.ink);
    return palette;
}

/// Lists and grids: the marked row is strong only where the keys go.
QPalette viewPalette(QPalette palette, const Ground &ground, const QColor &selected,
                     const QColor &text) {
    palette.setColor(QPalette::Active, QPalette::Highlight, selected);
    palette.setColor(QPalette::Active, QPalette::HighlightedText, text);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, ground.muted);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, ground.ink);
    return palette;
}

/// A filled box with its tick, or an empty frame: told apart at a glance, and from afar.
void paintTick(const QStyleOption &option, QPainter *painter) {
    const QRectF box = QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
    const bool set = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const QColor ink = option.palette.color(QPalette::Text);
    const QColor ground = option.palette.color(QPalette::Base);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    // Apart from the row that is marked, too, whichever of the two its ground is like.
    painter->setPen(QPen(set ? ground : ink, 1.2));
    painter->setBrush(set ? ink : ground);
    painter->drawRoundedRect(box, 2.5, 2.5);
    painter->setPen(QPen(ground, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
    };
    if (option.state & QStyle::State_On) {
        painter->drawPolyline(QPolygonF({at(0.22, 0.54), at(0.42, 0.74), at(0.78, 0.28)}));
    } else if (option.state & QStyle::State_NoChange) {
        painter->drawLine(at(0.25, 0.5), at(0.75, 0.5));
    }
    painter->restore();
}

void paintRadio(const QStyleOption &option, QPainter *painter) {
    const QPointF middle = QRectF(option.rect).center();
    const double radius = std::min(option.rect.width(), option.rect.height()) / 2.0 - 1.5;
    const QColor ink = option.palette.color(QPalette::Text);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(ink, 1.2));
    painter->setBrush(option.palette.color(QPalette::Base));
    painter->drawEllipse(middle, radius, radius);
    if (option.state & QStyle::State_On) {
        painter->setBrush(ink);
        painter->drawEllipse(middle, radius / 2.2, radius / 2.2);
    }
    painter->restore();
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
                            stem + QStringLiteral("_teleg") + png,
                            QLatin1String(title) == QLatin1String("KaldoBlack")};
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

double contrast(const QColor &text, const QColor &ground) {
    const auto luminance = [](const QColor &colour) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
               0.0722 * part(colour.blueF());
    };
    const double first = luminance(text) + 0.05;
    const double second = luminance(ground) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

void applyBaseLook() {
    QApplication::setStyle(new KaldoStyle);
    applyScheme(nullptr);
}

void applyScheme(const ColourScheme *scheme) {
    if (auto *style = dynamic_cast<KaldoStyle *>(QApplication::style())) {
        style->setHeader(scheme != nullptr ? scheme->kaldoColor : QColor());
    }
    const Ground &ground = scheme != nullptr && scheme->dark ? kDark : kLight;
    QColor focus = baseAccent();
    QColor selected = focus;
    QColor text = Qt::white;
    if (scheme != nullptr) {
        // Rows are selected in the pale colour; the focus keeps the strong one, which on a dark
        // ground is the pale one too.
        selected = scheme->kaldoSelect;
        text = kInk;
        focus = scheme->dark ? scheme->kaldoSelect : deepEnough(scheme->kaldoColor, Qt::white);
    }
    const QPalette palette =
        paletteOf(ground, focus, contrast(Qt::white, focus) < kReadable ? kInk : QColor(Qt::white));
    QApplication::setPalette(palette);
    QApplication::setPalette(viewPalette(palette, ground, selected, text), "QAbstractItemView");
}

}  // namespace kaldo
