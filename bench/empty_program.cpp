// The least that a program of this kind does: attach to the databases and paint an empty window.

#include <ibase.h>

#include "bench/painted.h"

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const kaldo::bench::PaintedReport report(QStringLiteral("empty"));
    QByteArray block(1, isc_dpb_version1);
    block += QByteArray(1, isc_dpb_user_name) + QByteArray(1, 6) + "SYSDBA";
    for (int at = 1; at < argc; ++at) {
        ISC_STATUS_ARRAY status;
        isc_db_handle database = 0;
        if (isc_attach_database(status, 0, argv[at], &database, static_cast<short>(block.size()),
                                block.constData()) != 0) {
            std::fprintf(stderr, "%s cannot be attached\n", argv[at]);
            return 1;
        }
    }
    QWidget window;
    window.setObjectName(QStringLiteral("empty"));
    window.resize(1024, 768);
    window.show();
    QApplication::exec();
    return 1;
}
