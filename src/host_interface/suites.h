#pragma once
#include "host_interface/host_procs.h"

// The host's suites, acquired by name and version through its broker. Names are
// compared by case. A function that is not used stands as `Unused`, so that the
// others lie at their places.

namespace tarnwick::host {

struct SPBasicSuite {
  SPErr(TARNWICK_HOST_CALL* AcquireSuite)(const char* name, std::int32_t version,
                                          const void** suite);
  SPErr(TARNWICK_HOST_CALL* ReleaseSuite)(const char* name, std::int32_t version);
  SPBoolean(TARNWICK_HOST_CALL* IsEqual)(const char* token1, const char* token2);
  SPErr(TARNWICK_HOST_CALL* AllocateBlock)(std::size_t size, void** block);
  SPErr(TARNWICK_HOST_CALL* FreeBlock)(void* block);
  SPErr(TARNWICK_HOST_CALL* ReallocateBlock)(void* block, std::size_t newSize, void** newBlock);
  SPErr(TARNWICK_HOST_CALL* Undefined)();
};
static_assert(sizeof(SPBasicSuite) == 7 * sizeof(void*));

using Unused = SPErr(TARNWICK_HOST_CALL*)();

struct ActionDescriptor;  // the host's own
struct ActionReference;

inline constexpr char kPSActionDescriptorSuite[] = "df135115-c769-11d0-8079-00c04fd7ec47";

// Doubles go by value. Version 2 ends before PutInteger64.
struct PSActionDescriptorProcs {
  OSErr(TARNWICK_HOST_CALL* Make)(ActionDescriptor** descriptor);
  OSErr(TARNWICK_HOST_CALL* Free)(ActionDescriptor* descriptor);
  Unused GetType;
  Unused GetKey;
  OSErr(TARNWICK_HOST_CALL* HasKey)(ActionDescriptor* descriptor, OSType key, Boolean* hasKey);
  Unused GetCount;
  Unused IsEqual;
  Unused Erase;
  Unused Clear;
  OSErr(TARNWICK_HOST_CALL* PutInteger)(ActionDescriptor* descriptor, OSType key,
                                        std::int32_t value);
  OSErr(TARNWICK_HOST_CALL* PutFloat)(ActionDescriptor* descriptor, OSType key, double value);
  OSErr(TARNWICK_HOST_CALL* PutUnitFloat)(ActionDescriptor* descriptor, OSType key, OSType unit,
                                          double value);
  OSErr(TARNWICK_HOST_CALL* PutString)(ActionDescriptor* descriptor, OSType key, const char* value);
  OSErr(TARNWICK_HOST_CALL* PutBoolean)(ActionDescriptor* descriptor, OSType key, Boolean value);
  Unused PutList;
  Unused PutObject;
  Unused PutGlobalObject;
  OSErr(TARNWICK_HOST_CALL* PutEnumerated)(ActionDescriptor* descriptor, OSType key, OSType type,
                                           OSType value);
  Unused PutReference;
  Unused PutClass;
  Unused PutGlobalClass;
  Unused PutAlias;
  OSErr(TARNWICK_HOST_CALL* GetInteger)(ActionDescriptor* descriptor, OSType key,
                                        std::int32_t* value);
  OSErr(TARNWICK_HOST_CALL* GetFloat)(ActionDescriptor* descriptor, OSType key, double* value);
  OSErr(TARNWICK_HOST_CALL* GetUnitFloat)(ActionDescriptor* descriptor, OSType key, OSType* unit,
                                          double* value);
  OSErr(TARNWICK_HOST_CALL* GetStringLength)(ActionDescriptor* descriptor, OSType key,
                                             std::uint32_t* length);
  OSErr(TARNWICK_HOST_CALL* GetString)(ActionDescriptor* descriptor, OSType key, char* value,
                                       std::uint32_t maxLength);
  OSErr(TARNWICK_HOST_CALL* GetBoolean)(ActionDescriptor* descriptor, OSType key, Boolean* value);
  Unused GetList;
  Unused GetObject;
  Unused GetGlobalObject;
  OSErr(TARNWICK_HOST_CALL* GetEnumerated)(ActionDescriptor* descriptor, OSType key, OSType* type,
                                           OSType* value);
  Unused GetReference;
  Unused GetClass;
  Unused GetGlobalClass;
  Unused GetAlias;
  Unused HasKeys;
  Unused PutIntegers;
  Unused GetIntegers;
  Unused AsHandle;
  Unused HandleToDescriptor;
  Unused PutZString;
  Unused GetZString;
  Unused PutData;
  Unused GetDataLength;
  Unused GetData;
  Unused PutInteger64;
  Unused GetInteger64;
};
static_assert(sizeof(PSActionDescriptorProcs) == 48 * sizeof(void*));
static_assert(offsetof(PSActionDescriptorProcs, GetInteger) == 22 * sizeof(void*));
static_assert(offsetof(PSActionDescriptorProcs, GetEnumerated) == 31 * sizeof(void*));

inline constexpr char kPSActionReferenceSuite[] = "df135117-c769-11d0-8079-00c04fd7ec47";

// Version 2 ends before PutNameZString. A reference is built from the inside
// out, property first.
struct PSActionReferenceProcs {
  OSErr(TARNWICK_HOST_CALL* Make)(ActionReference** reference);
  OSErr(TARNWICK_HOST_CALL* Free)(ActionReference* reference);
  Unused GetForm;
  Unused GetDesiredClass;
  OSErr(TARNWICK_HOST_CALL* PutName)(ActionReference* reference, OSType desiredClass,
                                     const char* name);
  Unused PutIndex;
  Unused PutIdentifier;
  Unused PutOffset;
  OSErr(TARNWICK_HOST_CALL* PutEnumerated)(ActionReference* reference, OSType desiredClass,
                                           OSType type, OSType value);
  OSErr(TARNWICK_HOST_CALL* PutProperty)(ActionReference* reference, OSType desiredClass,
                                         OSType key);
  Unused PutClass;
  Unused GetNameLength;
  Unused GetName;
  Unused GetIndex;
  Unused GetIdentifier;
  Unused GetOffset;
  Unused GetEnumerated;
  Unused GetProperty;
  Unused GetContainer;
  Unused PutNameZString;
  Unused GetNameZString;
};
static_assert(sizeof(PSActionReferenceProcs) == 21 * sizeof(void*));

inline constexpr char kPSBasicActionControlSuite[] = "3eb7c480-8797-11d1-8da7-00c04fd5f7ee";

struct PSBasicActionControlProcs {
  // The caller frees the descriptor.
  OSErr(TARNWICK_HOST_CALL* Get)(ActionDescriptor** result, ActionReference* reference);
  Unused StringIDToTypeID;
  Unused TypeIDToStringID;
  Unused MakeStringAlias;
};
static_assert(sizeof(PSBasicActionControlProcs) == 4 * sizeof(void*));

inline constexpr char kPSDescriptorRegistrySuite[] = "61e608b0-40fd-11d1-8da3-00c04fd5f7ee";

struct PSDescriptorRegistryProcs {
  // The host keeps a copy of its own.
  OSErr(TARNWICK_HOST_CALL* Register)(const char* key, ActionDescriptor* descriptor,
                                      Boolean isPersistent);
  OSErr(TARNWICK_HOST_CALL* Erase)(const char* key);
  // The caller frees the descriptor. Without an entry: null, or an error.
  OSErr(TARNWICK_HOST_CALL* Get)(const char* key, ActionDescriptor** descriptor);
};
static_assert(sizeof(PSDescriptorRegistryProcs) == 3 * sizeof(void*));

inline constexpr char kPSChannelPortsSuite[] = "Photoshop ChannelPorts Suite for Plug-ins";

struct PSChannelPortsSuite {
  Unused CountLevels;
  Unused GetDepth;
  Unused GetDataBounds;
  Unused GetWriteLimit;
  Unused GetTilingGrid;
  Unused GetSupportRect;
  Unused GetDependentRect;
  SPErr(TARNWICK_HOST_CALL* CanRead)(ChannelPort* port, Boolean* canRead);
  Unused CanWrite;
  // The rectangle is in document coordinates; on success it holds what was read.
  SPErr(TARNWICK_HOST_CALL* ReadPixelsFromLevel)(ChannelPort* port, std::int32_t level,
                                                 VRect* readRect,
                                                 const PixelMemoryDesc* destination);
  Unused others[12];
};
static_assert(sizeof(PSChannelPortsSuite) == 22 * sizeof(void*));
static_assert(offsetof(PSChannelPortsSuite, ReadPixelsFromLevel) == 9 * sizeof(void*));

inline constexpr char kPSColorSpaceSuite[] = "Photoshop ColorSpace Suite for Plug-ins";

// Four bytes a colour: RGB is (unused, red, green, blue).
struct PSColorSpaceSuite {
  Unused firstSix[6];
  SPErr(TARNWICK_HOST_CALL* Convert8)(std::int16_t fromSpace, std::int16_t toSpace,
                                      std::uint8_t (*colors)[4], std::int16_t count);
  Unused others[8];
};
static_assert(offsetof(PSColorSpaceSuite, Convert8) == 6 * sizeof(void*));

inline constexpr char kSPAccessSuite[] = "SP Access Suite";

struct SPPlugin;  // the host's own
struct SPAccess;

struct SPPlatformAccessInfo {
  void* defaultAccess;  // the module's handle
  void* resourceAccess;
  std::uint32_t lastAccessTicks;
};

struct SPAccessSuite {
  Unused AcquirePlugin;
  Unused ReleasePlugin;
  SPErr(TARNWICK_HOST_CALL* GetPluginAccess)(SPPlugin* plugin, SPAccess** access);
  Unused GetAccessPlugin;
  Unused GetAccessEntry;
  Unused GetAccessCount;
  SPErr(TARNWICK_HOST_CALL* GetAccessInfo)(SPAccess* access, SPPlatformAccessInfo* info);
  Unused others[5];
};
static_assert(sizeof(SPAccessSuite) == 12 * sizeof(void*));

}  // namespace tarnwick::host
