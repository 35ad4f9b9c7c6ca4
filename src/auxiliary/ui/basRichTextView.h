// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Rich-text documents as Qt shows them.
#pragma once

#include "richtext/RichText.h"

#include <QTextDocument>
#include <memory>

namespace quorvex::auxiliary::ui {

// The document for Qt's text windows, with a margin. It is made as a whole before one of them sees it: they
// would lay it out anew for every piece. Before a window or a printer gives it the size of its pages it is
// not laid out at all.
[[nodiscard]] std::unique_ptr<QTextDocument> MakeTextDocument(richtext::RichTextDocument const& document);

} // namespace quorvex::auxiliary::ui
