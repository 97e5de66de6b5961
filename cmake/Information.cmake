# SPDX-License-Identifier: MIT
# What the program knows about its own release. Only a release names a feed; a build without one is never updated.
set(ROAMLET_FEED_URL "" CACHE STRING "Where updates of this release are announced (https)")
set(ROAMLET_PUBLIC_KEY "" CACHE STRING "The Ed25519 public key, in Base64, whose signature an update has to bear")
if(ROAMLET_FEED_URL AND NOT ROAMLET_PUBLIC_KEY)
  message(FATAL_ERROR "A feed needs ROAMLET_PUBLIC_KEY: without a key no update could be told from a forged one.")
endif()
if(ROAMLET_FEED_URL AND NOT ROAMLET_FEED_URL MATCHES "^https://[^/]+/.")
  message(FATAL_ERROR "ROAMLET_FEED_URL is no address that begins with https: ${ROAMLET_FEED_URL}")
endif()
string(LENGTH "${ROAMLET_PUBLIC_KEY}" key_length)
if(ROAMLET_PUBLIC_KEY AND NOT (key_length EQUAL 44 AND ROAMLET_PUBLIC_KEY MATCHES "^[A-Za-z0-9+/]+=$"))
  message(FATAL_ERROR "ROAMLET_PUBLIC_KEY is no key, which is 32 bytes in Base64: ${ROAMLET_PUBLIC_KEY}")
endif()

configure_file(${CMAKE_CURRENT_LIST_DIR}/../Sources/Roamlet/App/Updates/ReleaseFacts.h.in
  ${CMAKE_BINARY_DIR}/Information/App/Updates/ReleaseFacts.h @ONLY)
