#pragma once
// The photo cube's own options (panel "feat_16PhotoCube"): the shadow, and the size, turn,
// view and light that the cube takes when random values are off.
#include <QString>

namespace tf {

class Controls;
struct ControlPanel;

inline constexpr const char *PhotoCubePanelName = "feat_16PhotoCube";

struct PhotoCubeOptions {
    bool shadow = true;
    int sizePercent = 62; // the silhouette's share of the picture
    int turn = 38;        // degrees about the upright axis
    int tilt = 28;        // degrees the eye looks down
    bool lightFromLeft = true;
};

PhotoCubeOptions photoCubeOptions(const Controls &controls);
const ControlPanel &photoCubePanel();
void registerPhotoCubePanel();

} // namespace tf
