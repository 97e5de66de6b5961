// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"
#include "Readers/ReadContext.h"

namespace roamlet::fuzz
{

/// Reads a source's history in every way that the program does, and looks at what comes out.
void readHistory(const Source &source, const ReadContext &context);

} // namespace roamlet::fuzz
