// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The columns of a table: rows are written without regard to each other, each with edges of its own.
#pragma once

#include "richtext/RichText.h"

namespace quorvex::richtext {

// Gives the table its columns and each cell its column and span from the edges of the cells. Edges that are
// less than a pixel or so apart are one. A table whose rows have more different edges than a table can have
// columns gets one column for each cell of its longest row, all alike.
void LayOutColumns(Table& table);

} // namespace quorvex::richtext
