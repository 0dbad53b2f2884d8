#include "catalogues/bulk_work.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr int kBusinessAreas = 10;

void tellDone(Messages &messages, const QString &text) {
    messages.information(text, u"Información"_s);
}

}  // namespace

bool confirmGeneration(Messages &messages) {
    return messages.confirm(
               u"¿Los datos proporcionados son correctos para generar este proceso? "_s) ==
           Answer::Yes;
}

void tellGenerated(Messages &messages) {
    tellDone(messages,
             u"La información ha sido registrada correctamente, presione cualquier tecla para "
             "continuar."_s);
}

void tellDeleted(Messages &messages) {
    tellDone(messages,
             u"La información ha sido eliminado correctamente, presione cualquier tecla para "
             "continuar."_s);
}

void copyRows(Frame &frame, NamedQuery &source, NamedQuery &target, const QStringList &copied,
              const std::function<void(int row)> &own) {
    const int rows = source.count();
    Progress progress(frame, rows);
    try {
        for (int row = 0; row < rows; ++row) {
            target.append();
            own(row);
            for (const QString &field : copied) {
                target.set(field, source.valueAt(row, field));
            }
            target.apply();
            progress.advance();
        }
    } catch (...) {
        target.cancelUpdates();
        throw;
    }
}

NamedQuery::RowFilter areasOfSector(Sector sector) {
    if (sector != Sector::Empresarial) {
        return {};
    }
    return [](const NamedQuery::RowReader &row) {
        return row(u"tipo_prod"_s).toInt() <= kBusinessAreas;
    };
}

}  // namespace kaldo
