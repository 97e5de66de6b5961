# SPDX-License-Identifier: MIT
# What the program knows about its own release. Only a release names a feed; a build without one is never updated.
set(ROAMLET_FEED_URL "" CACHE STRING "Where updates of this release are announced (https)")
set(ROAMLET_PUBLIC_KEY "" CACHE STRING "The Ed25519 public key, in Base64, whose signature an update has to bear")
if(ROAMLET_FEED_URL AND NOT ROAMLET_PUBLIC_KEY)
  message(FATAL_ERROR "A feed needs ROAMLET_PUBLIC_KEY: without a key no update could be told from a forged one.")
endif()

configure_file(${CMAKE_CURRENT_LIST_DIR}/../Sources/Roamlet/App/Updates/ReleaseFacts.h.in
  ${CMAKE_BINARY_DIR}/Information/App/Updates/ReleaseFacts.h @ONLY)
