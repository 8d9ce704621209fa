#pragma once
/// What assistive technology sees of a combo box. Qt's own view of one has the text in it for its name on
/// Unix, where a reader is then not told which field it is.

/// Makes every combo box of this program be seen so from now on.
void UseOwnAccessForComboBoxes();
