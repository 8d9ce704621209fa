#pragma once
/// The layout manager's record of one control: its place at registration, in twips, and its shares of the
/// form's growth. A record never changes.
#include <cstdint>

class SizedControl;

struct clsControl {
    std::int32_t Left = 0;
    std::int32_t Top = 0;
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    double xr = 0; ///< share of the growth in width by which the control moves right
    double yr = 0; ///< share of the growth in height by which it moves down
    double wr = 0; ///< share of the growth in width by which it becomes wider
    double hr = 0; ///< share of the growth in height by which it becomes taller
    SizedControl *ctrl = nullptr;
};
