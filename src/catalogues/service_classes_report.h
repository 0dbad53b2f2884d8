#pragma once

#include "app/catalogue_report.h"
#include "data/named_query.h"

namespace kaldo {

/// A class's discount on a sales area of a centre, or an area without any.
struct ServiceClassLine {
    QString centro, centroDescr;
    QString tipoProd, areaDescr;
    QString edadMin, edadMax, aplicaAnticipo, aplicaDesc, requiereEdad;
    int prestacion = 0;  ///< 0: no class
    QString prestacionDescr;
    QString porcent;

    bool sameArea(const ServiceClassLine &other) const {
        return centro == other.centro && tipoProd == other.tipoProd;
    }
};

/// The rows of `ClasifServiciosR`.
QList<ServiceClassLine> serviceClassLines(NamedQuery &clasifServiciosR);

/// By centre and sales area, with what each class of patient is let off.
report::Document layoutServiceClasses(const CatalogueHeading &heading,
                                      const QList<ServiceClassLine> &rows);

}  // namespace kaldo
