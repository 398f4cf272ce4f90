// Colours as forms store them: 32 bits, &H00BBGGRR, or &H800000nn for a colour of the desktop.
#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace vorlane {

using FormColour = std::uint32_t;

namespace DesktopColour {

inline constexpr FormColour MenuText = 0x80000007;
inline constexpr FormColour Highlight = 0x8000000D;
inline constexpr FormColour HighlightText = 0x8000000E;
inline constexpr FormColour ButtonFace = 0x8000000F;
inline constexpr FormColour DisabledText = 0x80000011;
inline constexpr FormColour ButtonText = 0x80000012;
inline constexpr FormColour Highlight3D = 0x80000014;
inline constexpr FormColour DarkShadow3D = 0x80000015;

}  // namespace DesktopColour

// A desktop's colour comes from the palette; one that no control uses is black.
QColor ToQColor(FormColour colour, const QPalette& palette);

}  // namespace vorlane
