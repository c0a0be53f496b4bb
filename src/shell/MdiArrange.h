// Arranging the child windows of an area by rows, by columns, one behind the other, or as icons
// along the bottom.
#pragma once

class QMdiArea;

enum class Tiling {
    Horizontally, // one above the other, each over the whole width
    Vertically    // side by side
};

// Minimised windows stay where they are. No window gets smaller than its contents allow.
void tileWindows(QMdiArea *area, Tiling tiling);
// Each a title bar below the one behind it, at the size its contents want.
void cascadeWindows(QMdiArea *area);
// Lines up the minimised windows from the bottom left.
void arrangeIcons(QMdiArea *area);
