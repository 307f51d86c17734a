#pragma once
#include "host_interface/host_types.h"

// Scripting: the recorded descriptor of a step and the tables that read and
// write it.

namespace tarnwick::host {

struct ReadDescriptor;  // the host's own
struct WriteDescriptor;
struct SimpleReference;

struct ReadDescriptorProcs {
  std::int16_t readDescriptorProcsVersion;
  std::int16_t numReadDescriptorProcs;
  ReadDescriptor*(TARNWICK_HOST_CALL* openReadDescriptorProc)(Handle descriptor, OSType* keys);
  OSErr(TARNWICK_HOST_CALL* closeReadDescriptorProc)(ReadDescriptor* token);
  Boolean(TARNWICK_HOST_CALL* getKeyProc)(ReadDescriptor* token, OSType* key, OSType* type,
                                          std::int32_t* flags);
  OSErr(TARNWICK_HOST_CALL* getIntegerProc)(ReadDescriptor* token, std::int32_t* data);
  OSErr(TARNWICK_HOST_CALL* getFloatProc)(ReadDescriptor* token, double* data);
  OSErr(TARNWICK_HOST_CALL* getUnitFloatProc)(ReadDescriptor* token, OSType* unit, double* data);
  OSErr(TARNWICK_HOST_CALL* getBooleanProc)(ReadDescriptor* token, Boolean* data);
  OSErr(TARNWICK_HOST_CALL* getTextProc)(ReadDescriptor* token, Handle* data);
  OSErr(TARNWICK_HOST_CALL* getAliasProc)(ReadDescriptor* token, Handle* data);
  OSErr(TARNWICK_HOST_CALL* getEnumeratedProc)(ReadDescriptor* token, OSType* data);
  OSErr(TARNWICK_HOST_CALL* getClassProc)(ReadDescriptor* token, OSType* data);
  OSErr(TARNWICK_HOST_CALL* getSimpleReferenceProc)(ReadDescriptor* token, SimpleReference* data);
  OSErr(TARNWICK_HOST_CALL* getObjectProc)(ReadDescriptor* token, OSType* type, Handle* data);
  OSErr(TARNWICK_HOST_CALL* getCountProc)(ReadDescriptor* token, std::uint32_t* count);
  OSErr(TARNWICK_HOST_CALL* getStringProc)(ReadDescriptor* token, Str255* data);
  OSErr(TARNWICK_HOST_CALL* getPinnedIntegerProc)(ReadDescriptor* token, std::int32_t min,
                                                  std::int32_t max, std::int32_t* data);
  OSErr(TARNWICK_HOST_CALL* getPinnedFloatProc)(ReadDescriptor* token, const double* min,
                                                const double* max, double* data);
  OSErr(TARNWICK_HOST_CALL* getPinnedUnitFloatProc)(ReadDescriptor* token, const double* min,
                                                    const double* max, OSType* unit, double* data);
};
static_assert(sizeof(ReadDescriptorProcs) == (sizeof(void*) == 4 ? 76 : 152));

struct WriteDescriptorProcs {
  std::int16_t writeDescriptorProcsVersion;
  std::int16_t numWriteDescriptorProcs;
  WriteDescriptor*(TARNWICK_HOST_CALL* openWriteDescriptorProc)();
  OSErr(TARNWICK_HOST_CALL* closeWriteDescriptorProc)(WriteDescriptor* token, Handle* descriptor);
  OSErr(TARNWICK_HOST_CALL* putIntegerProc)(WriteDescriptor* token, OSType key, std::int32_t data);
  OSErr(TARNWICK_HOST_CALL* putFloatProc)(WriteDescriptor* token, OSType key, const double* data);
  OSErr(TARNWICK_HOST_CALL* putUnitFloatProc)(WriteDescriptor* token, OSType key, OSType unit,
                                              const double* data);
  OSErr(TARNWICK_HOST_CALL* putBooleanProc)(WriteDescriptor* token, OSType key, Boolean data);
  OSErr(TARNWICK_HOST_CALL* putTextProc)(WriteDescriptor* token, OSType key, Handle data);
  OSErr(TARNWICK_HOST_CALL* putAliasProc)(WriteDescriptor* token, OSType key, Handle data);
  OSErr(TARNWICK_HOST_CALL* putEnumeratedProc)(WriteDescriptor* token, OSType key, OSType type,
                                               OSType data);
  OSErr(TARNWICK_HOST_CALL* putClassProc)(WriteDescriptor* token, OSType key, OSType data);
  OSErr(TARNWICK_HOST_CALL* putSimpleReferenceProc)(WriteDescriptor* token, OSType key,
                                                    const SimpleReference* data);
  OSErr(TARNWICK_HOST_CALL* putObjectProc)(WriteDescriptor* token, OSType key, OSType type,
                                           Handle data);
  OSErr(TARNWICK_HOST_CALL* putCountProc)(WriteDescriptor* token, OSType key, std::uint32_t count);
  OSErr(TARNWICK_HOST_CALL* putStringProc)(WriteDescriptor* token, OSType key, const Str255* data);
  OSErr(TARNWICK_HOST_CALL* putScopedClassProc)(WriteDescriptor* token, OSType key, OSType data);
  OSErr(TARNWICK_HOST_CALL* putScopedObjectProc)(WriteDescriptor* token, OSType key, OSType type,
                                                 Handle data);
};
static_assert(sizeof(WriteDescriptorProcs) == (sizeof(void*) == 4 ? 68 : 136));

// playInfo, set by the host.
inline constexpr std::int16_t plugInDialogDontDisplay = 0;
inline constexpr std::int16_t plugInDialogDisplay = 1;
inline constexpr std::int16_t plugInDialogSilent = 2;
// recordInfo, set by the module.
inline constexpr std::int16_t plugInDialogOptional = 0;

// The module disposes of a descriptor that it has read; the one that it leaves
// here is the host's.
struct PIDescriptorParameters {
  std::int16_t descriptorParametersVersion;
  std::int16_t playInfo;
  std::int16_t recordInfo;
  Handle descriptor;
  WriteDescriptorProcs* writeDescriptorProcs;
  ReadDescriptorProcs* readDescriptorProcs;
};
static_assert(sizeof(PIDescriptorParameters) == (sizeof(void*) == 4 ? 20 : 32));
static_assert(offsetof(PIDescriptorParameters, descriptor) == 8);

inline constexpr OSType unitPercent = FourCC("#Prc");
inline constexpr OSType typeNull = FourCC("null");

}  // namespace tarnwick::host
