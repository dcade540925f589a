/** @file
 *  The version that these headers belong to, and the one place that states it. The major number,
 *  which names the shared library too, changes when a program must be compiled anew; the minor one
 *  when something is added. */
#ifndef TARNLIB_VERSION_H
#define TARNLIB_VERSION_H

/** The major number. */
#define TARNLIB_VERSION_MAJOR 1
/** The minor number. */
#define TARNLIB_VERSION_MINOR 0
/** The number of the correction. */
#define TARNLIB_VERSION_PATCH 0

/** One number to compare with: 0x00MMmmpp. */
#define TARNLIB_VERSION \
    ((TARNLIB_VERSION_MAJOR << 16) | (TARNLIB_VERSION_MINOR << 8) | TARNLIB_VERSION_PATCH)

/** The three as text. */
#define TARNLIB_VERSION_STRING "1.0.0"

#endif
