// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/SharedSource.h"

namespace roamlet
{

SharedSource::SharedSource(const Source &source) : m_data(new Data(source)) {}

SharedSource::SharedSource()
{
    static const SharedSource none{Source()};
    m_data = none.m_data;
}

} // namespace roamlet
