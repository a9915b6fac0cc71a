// The entry points, found by their plain names in the shared library as a loader of components finds them.
#include "component/entrypoints.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace vorlane {
namespace {

using ::testing::Return;
using ::testing::StrictMock;
using ::testing::Throw;

class MockRuntime : public ComponentRuntime {
public:
    MOCK_METHOD(HResult, GetClassObject, (const Guid* classId, const Guid* interfaceId, void** object), (override));
    MOCK_METHOD(HResult, CanUnloadNow, (), (override));
    MOCK_METHOD(HResult, RegisterServer, (), (override));
    MOCK_METHOD(HResult, UnregisterServer, (), (override));
};

class EntryPoints : public ::testing::Test {
protected:
    void* library = dlopen(VORLANE_LIBRARY, RTLD_NOW);
    StrictMock<MockRuntime> runtime;

    void SetUp() override { ASSERT_NE(library, nullptr) << dlerror(); }
    ~EntryPoints() override {
        SetComponentRuntime(nullptr);
        if (library != nullptr) dlclose(library);
    }

    template <class Function>
    Function* Find(const char* name) const {
        void* const found = dlsym(library, name);
        EXPECT_NE(found, nullptr) << name;
        return reinterpret_cast<Function*>(found);
    }

    HResult GetClassObject(const Guid* classId, const Guid* interfaceId, void** object) const {
        return Find<decltype(DllGetClassObject)>("DllGetClassObject")(classId, interfaceId, object);
    }
    HResult Call(const char* name) const { return Find<HResult()>(name)(); }
};

constexpr Guid kClass{0x12345678, 0x9ABC, 0xDEF0, {1, 2, 3, 4, 5, 6, 7, 8}};
constexpr Guid kInterface{1, 2, 3, {}};

TEST_F(EntryPoints, ForwardAClassAndItsInterfaceToTheRuntimeAndItsObjectBack) {
    SetComponentRuntime(&runtime);
    int object = 0;
    void* given = nullptr;
    EXPECT_CALL(runtime, GetClassObject(&kClass, &kInterface, &given)).WillOnce([&](auto, auto, void** answer) {
        *answer = &object;
        return kOk;
    });
    EXPECT_EQ(GetClassObject(&kClass, &kInterface, &given), kOk);
    EXPECT_EQ(given, &object);
}

TEST_F(EntryPoints, AnswerWhatTheRuntimeAnswers) {
    SetComponentRuntime(&runtime);
    EXPECT_CALL(runtime, CanUnloadNow()).WillOnce(Return(1));
    EXPECT_CALL(runtime, RegisterServer()).WillOnce(Return(2));
    EXPECT_CALL(runtime, UnregisterServer()).WillOnce(Return(-3));
    EXPECT_EQ(Call("DllCanUnloadNow"), 1);
    EXPECT_EQ(Call("DllRegisterServer"), 2);
    EXPECT_EQ(Call("DllUnregisterServer"), -3);
}

TEST_F(EntryPoints, WithoutARuntimeGiveNoClassAreNotInUseAndRegisterNothing) {
    int object = 0;
    void* given = &object;
    EXPECT_EQ(GetClassObject(&kClass, &kInterface, &given), kClassNotAvailable);
    EXPECT_EQ(given, nullptr);
    EXPECT_EQ(GetClassObject(&kClass, &kInterface, nullptr), kClassNotAvailable);
    EXPECT_EQ(Call("DllCanUnloadNow"), kOk);
    EXPECT_EQ(Call("DllRegisterServer"), kNotImplemented);
    EXPECT_EQ(Call("DllUnregisterServer"), kNotImplemented);
}

TEST_F(EntryPoints, LetNoExceptionOfTheRuntimeThrough) {
    SetComponentRuntime(&runtime);
    EXPECT_CALL(runtime, RegisterServer()).WillOnce(Throw(std::runtime_error("no")));
    EXPECT_EQ(Call("DllRegisterServer"), kUnexpected);
}

TEST(AComponentsRuntime, IsGivenBackByItsSuccessor) {
    StrictMock<MockRuntime> first;
    EXPECT_EQ(SetComponentRuntime(&first), nullptr);
    EXPECT_EQ(SetComponentRuntime(nullptr), &first);
}

}  // namespace
}  // namespace vorlane
