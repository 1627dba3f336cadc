// Modules, programs, search. Nothing is loaded or started that is there.
#include "probe.h"

namespace doctor {
namespace {

constexpr const char16_t* kMissing = u"quarlo-doctor-has-no-such-thing";

Complaint loads(const Platform& platform) {
    const auto load = platform.service<GPILoadModule>(GPI_SERVICE_LOAD_MODULE);
    return load(kMissing, 0) == nullptr ? "" : "loads a module that there is not";
}

Complaint loadsEx(const Platform& platform) {
    const auto load = platform.service<GPILoadModuleEx>(GPI_SERVICE_LOAD_MODULE_EX);
    return load(kMissing) == nullptr ? "" : "loads a module that there is not";
}

Complaint frees(const Platform& platform) {
    const auto free = platform.service<GPIFreeModule>(GPI_SERVICE_FREE_MODULE);
    return free(nullptr) == 0 ? "" : "frees a module that there is not";
}

Complaint findsFunction(const Platform& platform) {
    const auto find = platform.service<GPIGetModuleFunction>(GPI_SERVICE_GET_MODULE_FUNCTION);
    return find(nullptr, u"main") == nullptr ? "" : "finds functions of no module";
}

Complaint executes(const Platform& platform) {
    const auto execute = platform.service<GPIExecute>(GPI_SERVICE_EXECUTE);
    return execute(kMissing, nullptr, nullptr, 0, nullptr) < 0
               ? ""
               : "starts a program that there is not";
}

Complaint exits(const Platform& platform) {
    const auto exit = platform.service<GPIExit>(GPI_SERVICE_EXIT);
    return exit(INT32_MAX) < 0 ? "" : "ends a program that there is not";
}

int compareNumbers(const void* key, const void* element) {
    return *static_cast<const int32_t*>(key) - *static_cast<const int32_t*>(element);
}

Complaint searches(const Platform& platform) {
    const auto search = platform.service<GPISearch>(GPI_SERVICE_SEARCH);
    constexpr int32_t kNumbers[] = {2, 3, 5, 7, 11, 13};
    for (const int32_t& number : kNumbers) {
        if (search(&number, kNumbers, 6, sizeof number, compareNumbers) != &number) {
            return "does not find what there is";
        }
    }
    const int32_t four = 4;
    if (search(&four, kNumbers, 6, sizeof four, compareNumbers) != nullptr) {
        return "finds what there is not";
    }
    return search(&four, kNumbers, 0, sizeof four, compareNumbers) == nullptr
               ? ""
               : "finds something in an empty array";
}

} // namespace

std::span<const Probe> moduleProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_LOAD_MODULE, loads, {}}, {GPI_SERVICE_LOAD_MODULE_EX, loadsEx, {}},
        {GPI_SERVICE_FREE_MODULE, frees, {}}, {GPI_SERVICE_GET_MODULE_FUNCTION, findsFunction, {}},
        {GPI_SERVICE_EXECUTE, executes, {}},  {GPI_SERVICE_EXIT, exits, {}},
        {GPI_SERVICE_SEARCH, searches, {}},
    };
    return kProbes;
}

} // namespace doctor
