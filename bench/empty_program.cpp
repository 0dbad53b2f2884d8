// The least that a program of this kind does: attach to the databases and paint an empty window.

#include <ibase.h>

#include "bench/painted.h"

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const kaldo::bench::PaintedReport report(QStringLiteral("empty"));
    QByteArray block(1, isc_dpb_version1);
    const auto add = [&block](char item, const char *text) {
        block += item;
        block += static_cast<char>(qstrlen(text));
        block += text;
    };
    add(isc_dpb_user_name, "SYSDBA");
    add(isc_dpb_lc_ctype, "UTF8");
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
