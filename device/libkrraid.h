/*
 * The access library of the bridge chip: twelve operations.
 *
 * A device is a 32-bit handle as getDeviceList reports it; between openConnection and
 * closeConnection it stands for that connection, and once the bridge has gone every operation
 * on it fails. Ports are 0 and 1. Sectors are 512 bytes; every multi-byte number in a buffer is
 * little-endian (docs/formats.md). The caller owns all buffers. Operations on a device are not
 * made two at a time; getDeviceList, openConnection and closeConnection may run beside one.
 *
 * Every operation returns 0 for success, unless it says more. What the bundled library returns
 * otherwise is negative and has a name below; another library may return anything else.
 */
#ifndef KESTREL_LIBKRRAID_H
#define KESTREL_LIBKRRAID_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
    KRRAID_DONE = 0,
    KRRAID_FAILED = -1,        /* refused or cut short by the bridge, or an argument is wrong */
    KRRAID_NO_DISK = -2,       /* there is no disk in that bay */
    KRRAID_NO_ANSWER = -3,     /* in time or unharmed; the bridge may still be there */
    KRRAID_NOT_PERMITTED = -4, /* the user has no access to the bridge */
    KRRAID_GONE = -5           /* the bridge has left, or was not opened */
};

/* Fills list (2048 bytes) with entries of 8 bytes: the handle in host byte order, then four
   bytes of zero. At most 256. count is the number filled in. The program finds what it knows of
   a bridge, and whether its volume is in use, by handles of the form of docs/formats.md. */
int32_t getDeviceList(void* list, int32_t* count);

int32_t openConnection(uint32_t device);
int32_t closeConnection(uint32_t device);

/* Reads one sector (length 512) of the disk on port at lba, the FW form always with 48-bit
   addressing, the plain form with it when lba48 is 1. */
int32_t krGetRaidInfo(uint32_t device, void* buffer, uint32_t length, uint64_t lba, int32_t port,
                      int32_t lba48);
int32_t krGetRaidInfoFW(uint32_t device, void* buffer, uint32_t length, uint64_t lba, int32_t port);

/* Writes one sector (length 512); addressing as for reading. */
int32_t krSetRaidInfo(uint32_t device, const void* record, uint32_t length, uint64_t lba,
                      int32_t port, int32_t lba48);
int32_t krSetRaidInfoFW(uint32_t device, const void* record, uint32_t length, uint64_t lba,
                        int32_t port);

/* Fills status (length 12): end LBA and current LBA of the copy, 48 bits each. */
int32_t krGetRebuildStatus(uint32_t device, void* status, uint32_t length);

/* Fills buffer (length 512) with the IDENTIFY DEVICE block of the disk on port. Negative: no
   disk answered. Only a block whose byte 510 is 0xA5 counts. */
int32_t krGetDiskIdentify(uint32_t device, void* buffer, uint32_t length, int32_t port);

/* Reads length (1 to 4) bytes from a chip register into buffer (size bytes). Negative: failed. */
int32_t krGetRegister(uint32_t device, void* buffer, uint32_t size, uint32_t length,
                      uint32_t address);

/* Restarts the chip: the bridge leaves the bus and comes back with a new handle. */
int32_t krWarmBoot(uint32_t device);

/* Makes what was written to the disk on port lasting. */
int32_t krFlushHDDCache(uint32_t device, int32_t port);

/* Part of the library's interface, defined by the program, which never touches them. */
extern unsigned char inputCommand[16];
extern unsigned char krDataPort[1024];
extern unsigned char krDevService[1024];
extern int32_t retVal;

#ifdef __cplusplus
}
#endif

#endif
