#include "shell/catalogue_screens.h"

#include "catalogues/frm100_care_centres.h"

namespace kaldo {

namespace {

template <typename S>
void add(FRM000 &window, Context &context, const char *entry) {
    window.setScreen(QString::fromLatin1(entry),
                     [&context] { return std::make_unique<S>(context); });
}

}  // namespace

void registerCatalogues(FRM000 &window, Context &context) {
    add<FRM100>(window, context, "B1");
}

}  // namespace kaldo
