#pragma once

#include <vector>

// A window rectangle in screen pixels, right and bottom exclusive.
struct ShrinkRect
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const ShrinkRect &o) const
    {
        return left == o.left && top == o.top && right == o.right && bottom == o.bottom;
    }
};

// The twenty inner rectangles of the effect: toward the centre, each side moves by a
// fortieth of the size; otherwise toward the screen origin by a twentieth of each coordinate.
// Each step is rounded to the nearest pixel, halves to even.
std::vector<ShrinkRect> ShrinkSteps(const ShrinkRect &window, bool towardCentre);

// The little animation the screens play after a save (true) or a delete (false): two
// rectangles, the second 10 pixels outside the first, shrinking over the active window in
// twenty steps of 15 ms. Purely visual; it does not block.
void ShrinkEffect(bool towardCentre);
