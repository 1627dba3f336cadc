#include "support/started_platform.h"

#include <quarlo/module.h>

#include <gtest/gtest.h>

namespace {

using namespace gpi::test;

const auto load = service<GPILoadModule>(GPI_SERVICE_LOAD_MODULE);
const auto loadEx = service<GPILoadModuleEx>(GPI_SERVICE_LOAD_MODULE_EX);
const auto freeModule = service<GPIFreeModule>(GPI_SERVICE_FREE_MODULE);
const auto function = service<GPIGetModuleFunction>(GPI_SERVICE_GET_MODULE_FUNCTION);

class Modules : public testing::Test {
  protected:
    StartedPlatform platform{{"QUARLO_MODULES", MODULE_FOLDER}};
};

TEST_F(Modules, OfferTheirFunctions) {
    GModule* const module = load(u"example_module.so", 0);
    ASSERT_NE(module, nullptr);
    const auto answer = reinterpret_cast<int (*)()>(function(module, u"answer"));
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer(), 42);
    EXPECT_EQ(function(module, u"none"), nullptr);
    EXPECT_EQ(function(module, nullptr), nullptr);
    EXPECT_EQ(freeModule(module), 1);
    EXPECT_EQ(function(module, u"answer"), nullptr);
}

TEST_F(Modules, AreCounted) {
    GModule* const module = loadEx(u"example_module");
    EXPECT_EQ(load(u"C:\\example_module.so", G_MODULE_SHARED), module);
    EXPECT_EQ(freeModule(module), 1);
    EXPECT_NE(function(module, u"answer"), nullptr);
    EXPECT_EQ(freeModule(module), 1);
    EXPECT_EQ(freeModule(module), 0);
    GModule* const again = loadEx(u"example_module");
    EXPECT_NE(again, module);
    EXPECT_EQ(freeModule(again), 1);
}

TEST_F(Modules, ThatAreNoneAreRefused) {
    EXPECT_EQ(load(nullptr, 0), nullptr);
    EXPECT_EQ(load(u"none", 0), nullptr);
    EXPECT_EQ(load(u"CMakeFiles", 0), nullptr);
    EXPECT_EQ(load(u"../module/example_module.so/../../x", 0), nullptr);
    EXPECT_EQ(load(u"example_module", 2), nullptr);
    EXPECT_EQ(freeModule(nullptr), 0);
    EXPECT_EQ(function(nullptr, u"answer"), nullptr);
}

TEST(ModulesOfAStoppedPlatform, AreRefused) {
    EXPECT_EQ(load(u"example_module", 0), nullptr);
    EXPECT_EQ(freeModule(nullptr), 0);
}

} // namespace
