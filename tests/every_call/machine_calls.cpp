#include "every_call/calls.h"

namespace quarlo::test {

ProgramCalls machineCalls() {
    return {
        with("GNCDataSetGNCValue", GNCDataSetGNCValue),
        with("GNCDataGetGNCValue", GNCDataGetGNCValue),
        with("GNCDataSetString", GNCDataSetString),
        with("GNCDataGetString", GNCDataGetString),
        with("GNCDataIsNotaNumber", GNCDataIsNotaNumber),
        with("GNCDataSetSystemVal", GNCDataSetSystemVal),
        with("GNCDataGetSystemVal", GNCDataGetSystemVal),
        with("GAppExecute", GAppExecute),
        with("GAppExit", GAppExit),
        with("GDFCLoadModule", GDFCLoadModule),
        with("GDFCLoadModuleEx", GDFCLoadModuleEx),
        with("GDFCFreeModule", GDFCFreeModule),
        with("GDFCGetModuleFuncAddress", GDFCGetModuleFuncAddress),
        with("GUBSearch", GUBSearch),
    };
}

} // namespace quarlo::test
