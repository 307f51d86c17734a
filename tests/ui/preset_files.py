"""Preset files, written and read by hand: what the dialog finds, and what it has saved.

Settings are a dictionary of the fields' names; colours are numbers with red in the low
byte.
"""

HEAD = b"TarnwickStudi Press Preset;\nVersion 2;\n"
NONE = "No_Texture.twk"

# What DEFAULTS of the pages leaves out: texts, colours and the light.
START = {
    "WashFileName1": "Scratched.twk", "WashFileName2": "General_Store.twk",
    "WashStainColor1": 0x000000, "WashStainColor2": 0x006464,
    "SurfaceFileName1": "Battleship.twk", "SurfaceFileName2": "Fiberglass.twk",
    "SurfaceHighlightColor": 0xFFFFFF, "SurfaceMidtoneColor": 0x00C8C8,
    "SurfaceShadowColor": 0x003296, "SurfaceLightAlpha": 58.0, "SurfaceLightBeta": 35.0,
    "BackgroundFileName": "Rusted.twk", "BackgroundHighlightColor": 0x00C8FF,
    "BackgroundMidtoneColor": 0x32329B, "BackgroundShadowColor": 0x001E64,
    "WashLinked": 0, "SurfaceLinked": 0, "BackgroundLinked": 0,
}


def keys(text):
    words = text.split()
    return list(zip(words[0::2], words[1::2]))


# Keys as they stand in the file, in its order.
COMMON = keys("sBLN NewLayerEffect")
WASH = keys("""sWLN MaskLayerEffect 1pTW WashType1 1tSW WashStainColor1 1NFW WashFileName1
    1cSW WashScale1 1tIW WashIntensity1 1HFW WashFlipHor1 1VFW WashFlipVer1 1vIW WashInvert1
    1dsI WashInside1 1gAW WashAngle1 1voC WashCoverage1 1cSC WashCoverageScale1
    1sDE WashEdgeDistance1 1fSE WashEdgeSoftness1 1dnR WashRandomize1 xE2W SecondWashExists""")
WASH_TWO = keys("""2NFW WashFileName2 2cSW WashScale2 2tIW WashIntensity2 2pTW WashType2
    2tSW WashStainColor2 2HFW WashFlipHor2 2VFW WashFlipVer2 2vIW WashInvert2 2dsI WashInside2
    2gAW WashAngle2 2voC WashCoverage2 2cSC WashCoverageScale2 2sDE WashEdgeDistance2
    2fSE WashEdgeSoftness2 2dnR WashRandomize2""")
SURFACE = keys("""1VFS SurfaceFlipVer1 1HFS SurfaceFlipHor1 1gAS SurfaceAngle1
    1NFS SurfaceFileName1 nEfS SurfaceEntire WnIS SurfaceIncludeWashArea 1hDS SurfaceDepth1
    1cSS SurfaceScale1 1nIS SurfaceInvert1 1OPS SurfacePerspectiveOn 1pTS SurfaceType1
    HRBS SurfaceBrightness nCfS SurfaceContrast euHS SurfaceHue nIfS SurfaceIntensity
    1DMS SurfaceMidtone 1CHS SurfaceHighlightColor 1CMS SurfaceMidtoneColor
    1CSS SurfaceShadowColor 1pAS SurfaceLightAlpha 1tBS SurfaceLightBeta
    E2fS SecondSurfaceExists""")
SURFACE_TWO = keys("""2pTS SurfaceType2 2VFS SurfaceFlipVer2 2HFS SurfaceFlipHor2
    2gAS SurfaceAngle2 2NFS SurfaceFileName2 2hDS SurfaceDepth2 2cSS SurfaceScale2
    2nIS SurfaceInvert2""")
BACKGROUND = keys("""NFkB BackgroundFileName fSLN NewLayerSurface kBLN NewLayerBackground
    nEkB BackgroundEntire HpFB BackgroundFlipHor VpFB BackgroundFlipVer gnAB BackgroundAngle
    vnIB BackgroundInvert lcSB BackgroundScale tLHB BackgroundHighlight tdMB BackgroundMidtone
    wdSB BackgroundShadow euHB BackgroundHue hnEB BackgroundEnhancedMode
    lCHB BackgroundHighlightColor lCMB BackgroundMidtoneColor lCSB BackgroundShadowColor""")
LINKS = keys("WkLI WashLinked SkLI SurfaceLinked BkLI BackgroundLinked")


def groups_of(settings):
    """The sections: caption and keys, as far as the settings have them written."""
    wash, surface, background = [("nOSW", "WashUse")], [("nOfS", "SurfaceUse")], [
        ("nOkB", "BackgroundUse")]
    if settings["WashUse"]:
        wash += WASH + (WASH_TWO if settings["SecondWashExists"] else [])
    if settings["SurfaceUse"]:
        surface += SURFACE + (SURFACE_TWO if settings["SecondSurfaceExists"] else [])
    background += BACKGROUND if settings["BackgroundUse"] else BACKGROUND[:1]
    return {"Common": COMMON, "Wash": wash, "Surface": surface, "Background": background}


def lines_of(kind, settings):
    """The lines below the header: captions, and keys with their values."""
    groups = groups_of(settings)
    lines = []
    for name in groups if kind == "User" else [kind]:
        lines.append(f"{name} parameters")
        lines += [(key, text_of(settings[field])) for key, field in groups[name]]
    return lines + [(key, text_of(settings[field])) for key, field in LINKS]


def text_of(value):
    return f"{value:.2f}" if isinstance(value, float) else str(value)


def preset(kind, settings):
    """The bytes of a file."""
    lines = [f";------{line}------" if isinstance(line, str) else
             f"{line[0]} {line[1]} \t\t\t\t;" for line in lines_of(kind, settings)]
    return HEAD + "".join(line + "\n" for line in lines).encode("latin-1")


def read_preset(path):
    """A file's lines in the form of lines_of()."""
    with open(path, "rb") as file:
        data = file.read()
    assert data.startswith(HEAD), f"{path} begins with {data[:60]}"
    assert data.endswith(b"\n") and b"\r" not in data, f"{path} has other ends of lines"
    lines = []
    for line in data[len(HEAD):-1].decode("latin-1").split("\n"):
        if line.startswith(";"):
            lines.append(line.strip(";-"))
        else:
            assert line[4] == " ", f"no key in {line!r}"
            lines.append((line[:4], line[5:].partition(";")[0].rstrip()))
    return lines
