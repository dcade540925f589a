/** @file
 *  The version that these headers belong to. The minor number changes with every change of the
 *  interface as long as the major number is 0. */
#ifndef TARNLIB_VERSION_H
#define TARNLIB_VERSION_H

#define TARNLIB_VERSION_MAJOR 0
#define TARNLIB_VERSION_MINOR 1
#define TARNLIB_VERSION_PATCH 0

/** One number to compare with: 0x00MMmmpp. */
#define TARNLIB_VERSION \
    ((TARNLIB_VERSION_MAJOR << 16) | (TARNLIB_VERSION_MINOR << 8) | TARNLIB_VERSION_PATCH)

#define TARNLIB_VERSION_STRING "0.1.0"

#endif
