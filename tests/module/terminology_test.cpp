#include <gtest/gtest.h>
#include <iterator>

#include "built_module.h"
#include "byte_reader.h"

namespace tarnwick {
namespace {

struct Parameter {
  const char* label;
  const char* key;
  const char* type = "long";
};

// Spelled as actions and scripts have always seen them.
constexpr Parameter kParameters[] = {
    {"Effect in new layer", "NLBs"},
    {"Use Wash", "WSOn"},
    {"Effect on Mask", "NLWs"},
    {"Type of Wash1", "WTp1"},
    {"Stain Color of Wash1", "WSt1"},
    {"Name of Wash1", "WFN1", "TEXT"},
    {"Scale of Wash1", "WSc1"},
    {"Intensity of Wash1", "WIt1"},
    {"Flip Wash1 Hor.", "WFH1"},
    {"Flip Wash1 Ver.", "WFV1"},
    {"Invert Wash1", "WIv1"},
    {"Wash1 Inside", "Isd1"},
    {"Wash1 Angle", "WAg1"},
    {"Wash1 Coverage", "Cov1"},
    {"Wash1 Coverage Scale", "CSc1"},
    {"Wash1 Edge Distance", "EDs1"},
    {"Wash1 Edge Softness", "ESf1"},
    {"Wash1 Ransomize", "Rnd1"},
    {"Second Wash Exist", "W2Ex"},
    {"Preset Category", "Ctgr", "TEXT"},
    {"Hightlight Color", "HiCl"},
    {"Midtone Color", "MdCl"},
    {"Shadow Color", "SdCl"},
    {"Preset Category", "Ctgr", "TEXT"},
    {"Hightlight Color", "HiCl"},
    {"Midtone Color", "MdCl"},
    {"Shadow Color", "SdCl"},
    {"Surface Use", "SfOn"},
    {"Flip Surf1 Ver.", "SFV1"},
    {"Flip Surf1 Hor.", "SFH1"},
    {"Surf1 Angle", "SAg1"},
    {"Surface1 Name", "SFN1", "TEXT"},
    {"Surface Entire whole", "SfEn"},
    {"Include Wash Area", "SInW"},
    {"Surface1 Depth", "SDh1"},
    {"Surface1 Scale", "SSc1"},
    {"Surface1 Invert", "SIn1"},
    {"Surface Perspective On", "SPO1"},
    {"Type of Surface1", "STp1"},
    {"Surface Brightness", "SBRH"},
    {"Surface Contrast", "SfCn"},
    {"Surface Hue", "SHue"},
    {"Surface Intensity", "SfIn"},
    {"Surface Midtone", "SMD1"},
    {"Surface Hightlight Color", "SHC1"},
    {"Surface Midtone Color", "SMC1"},
    {"Surface Shadow Color", "SSC1"},
    {";Surface light alpha", "SAp1", "doub"},
    {";Surface light beta", "SBt1", "doub"},
    {"Surface2 Exists", "Sf2E"},
    {"Use Background", "BkOn"},
    {"Name of Background", "BkFN", "TEXT"},
    {"Surface in new layer", "NLSf"},
    {"Background in new layer", "NLBk"},
    {"Background Entire whole", "BkEn"},
    {"Background Flip Hor.", "BFpH"},
    {"Background Flip Ver.", "BFpV"},
    {"Back Angle", "BAng"},
    {"Background Invert", "BInv"},
    {"Background Scale", "BScl"},
    {"Background Highlight", "BHLt"},
    {"Background Midtone", "BMdt"},
    {"Background Shadow", "BSdw"},
    {"Background Hue", "BHue"},
    {"Background Enhanced Mode", "BEnh"},
    {"Background Highlight Color", "BHCl"},
    {"Background Midtone Color", "BMCl"},
    {"Background Shadow Color", "BSCl"},
};
static_assert(std::size(kParameters) == 68);

void ExpectHead(ByteReader& in) {
  EXPECT_EQ(in.U16(), 1) << "signature";
  EXPECT_EQ(in.U8(), 1) << "major version";
  EXPECT_EQ(in.U8(), 0) << "minor version";
  EXPECT_EQ(in.U16(), 1) << "language";
  EXPECT_EQ(in.U16(), 0) << "script";
  EXPECT_EQ(in.U16(), 1) << "number of suites";
  EXPECT_EQ(in.CountedText(), "Quayside Ink");
  EXPECT_EQ(in.CountedText(), "Adobe example plug-ins");
  EXPECT_EQ(in.Code(), "TNWK") << "suite";
  EXPECT_EQ(in.U16(), 1) << "level";
  EXPECT_EQ(in.U16(), 1) << "version of the suite";
}

void ExpectEventHead(ByteReader& in) {
  EXPECT_EQ(in.CountedText(), "Tarnwick Studio");
  EXPECT_EQ(in.CountedText(), "dissolve example filter plug-in");
  EXPECT_EQ(in.Code(), "TNWK") << "class";
  EXPECT_EQ(in.Code(), "TNWK") << "event";
  EXPECT_EQ(in.Code(), "null") << "reply";
  EXPECT_EQ(in.CountedText(), "");
  EXPECT_EQ(in.U16(), 0) << "flags of the reply";
  EXPECT_EQ(in.Code(), "#ImR") << "direct parameter";
  EXPECT_EQ(in.CountedText(), "");
  EXPECT_EQ(in.U16(), 0xB000) << "flags of the direct parameter";
}

TEST(ScriptTerminology, NamesTheEventAndItsParameters) {
  ByteReader in(DescriptionBytes("AETE"));
  ExpectHead(in);
  ASSERT_EQ(in.U16(), 1) << "number of events";
  ExpectEventHead(in);
  ASSERT_EQ(in.U16(), 68) << "number of parameters";
  for (const Parameter& parameter : kParameters) {
    EXPECT_EQ(in.CountedText(), parameter.label);
    EXPECT_EQ(in.Code(), parameter.key) << parameter.label;
    EXPECT_EQ(in.Code(), parameter.type) << parameter.label;
    EXPECT_EQ(in.CountedText(), " ") << parameter.label;
    EXPECT_EQ(in.U16(), 0) << parameter.label;
  }
  EXPECT_EQ(in.U16(), 0) << "classes";
  EXPECT_EQ(in.U16(), 0) << "comparison operators";
  EXPECT_EQ(in.U16(), 0) << "enumerations";
  EXPECT_TRUE(in.AtEnd());
}

}  // namespace
}  // namespace tarnwick
