#include "paint/groups.h"

#include <QtGlobal>

namespace tf {

const char *groupTitle(int group)
{
    static const std::array<const char *, GroupCount> titles = {
        QT_TRANSLATE_NOOP("Groups", "Rechtecke, Linien"),
        QT_TRANSLATE_NOOP("Groups", "Foto && Künstler"),
        QT_TRANSLATE_NOOP("Groups", "Runde Graphen"),
        QT_TRANSLATE_NOOP("Groups", "pOp - Art "),
        QT_TRANSLATE_NOOP("Groups", "Gradienten"),
        QT_TRANSLATE_NOOP("Groups", "Balken && Kurven"),
        QT_TRANSLATE_NOOP("Groups", "Text"),
        QT_TRANSLATE_NOOP("Groups", "Ränder"),
        QT_TRANSLATE_NOOP("Groups", "Formen"),
        QT_TRANSLATE_NOOP("Groups", "Papiermuster"),
    };
    return group >= 1 && group <= GroupCount ? titles[size_t(group - 1)] : "";
}

} // namespace tf
