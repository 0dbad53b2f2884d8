#pragma once

#include <QColor>
#include <QDate>
#include <QVariant>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;

namespace kaldo {

/// The bar at the side of the main window: the rate, and the day's figures of the desk. Its groups
/// are built when a login first needs one.
class SideBar : public QWidget {
    Q_OBJECT

public:
    explicit SideBar(QWidget *parent = nullptr);

    void setGroups(bool rate, bool desk, bool sites);
    void setRate(const QString &rate, const QDate &today);
    /// Reads the figures of the day by the names of their columns.
    void setFigures(const std::function<QVariant(const QString &column)> &figure);
    void setHeaderColour(const QColor &colour);

protected:
    bool event(QEvent *event) override;

private:
    void ensureBuilt();
    void takeWidth();
    void paintHeaders();
    struct Figure {
        const char *column;
        bool money;
        QLabel *label;
    };

    QWidget *makeRateGroup();
    QWidget *makeDeskGroup();
    QWidget *makeSitesGroup();
    QWidget *makeGroup(const QString &name, const QString &title, QWidget *content);

    QWidget *rateGroup_ = nullptr;
    QWidget *deskGroup_ = nullptr;
    QWidget *sitesGroup_ = nullptr;
    QLabel *rate_ = nullptr;
    QLabel *today_ = nullptr;
    std::vector<Figure> figures_;
    std::vector<QLabel *> headers_;
    QColor headerColour_;
};

}  // namespace kaldo
