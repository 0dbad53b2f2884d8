#pragma once

#include <QBoxLayout>
#include <QResizeEvent>

#include "toolkit/forms/form.h"

namespace kaldo {

/// Two parts of a form beside each other, or one below the other where both don't fit the width.
class SideBySide final : public QWidget {
public:
    explicit SideBySide(QWidget *parent = nullptr)
        : QWidget(parent), line_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
        line_->setContentsMargins(0, 0, 0, 0);
        line_->setSpacing(kSpacing);
    }

    void add(const form::Item &part) {
        auto *panel = new QWidget(this);
        form::build(panel, part);
        panel->layout()->setContentsMargins(0, 0, 0, 0);
        line_->addWidget(panel, 1);
    }

    QSize minimumSizeHint() const override {
        int widest = 0;
        for (int at = 0; at < line_->count(); ++at) {
            widest = std::max(widest, line_->itemAt(at)->minimumSize().width());
        }
        return {widest, line_->totalMinimumSize().height()};
    }

protected:
    void resizeEvent(QResizeEvent *event) override {
        QWidget::resizeEvent(event);
        int wanted = kSpacing * (line_->count() - 1);
        for (int at = 0; at < line_->count(); ++at) {
            wanted += line_->itemAt(at)->sizeHint().width();
        }
        const auto direction =
            wanted <= width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
        if (direction != line_->direction()) {
            line_->setDirection(direction);
            updateGeometry();
        }
    }

private:
    static constexpr int kSpacing = 10;

    QBoxLayout *line_;
};

/// In a form's expression.
inline form::WidgetItem<SideBySide> sideBySide(const form::Item &left, const form::Item &right) {
    return form::custom<SideBySide>(nullptr, QStringLiteral("lados"))
        .with([left, right](SideBySide *parts) {
            parts->add(left);
            parts->add(right);
        })
        .fill();
}

}  // namespace kaldo
