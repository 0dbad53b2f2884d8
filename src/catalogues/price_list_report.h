#pragma once

#include "app/catalogue_report.h"
#include "data/named_query.h"

namespace kaldo {

struct PriceListRow {
    int tipoProd = 0;
    QString area;
    QString cveProd, descr, unidad, vigente;
    double menudeo = 0;
    QString prog, subsubcta, tipodeiva, clasificacioniva, nomenclatura, claveprodserv;
};

/// The rows of `Listaprecios`, with the units' names.
QList<PriceListRow> priceListRows(NamedQuery &listaprecios, NamedQuery &umedida);

/// By sales area, landscape; the accounting columns only where government accounting asks for them.
report::Document layoutPriceList(const CatalogueHeading &heading, const QString &ciudad,
                                 const QList<PriceListRow> &rows, bool accounts);

}  // namespace kaldo
