/* A preloaded library that shifts the clock of one program. It adds the seconds in the file that VT_CLOCK
 * names to the real-time clock. Each call reads the file again, so a test can move a running program over
 * midnight by rewriting the file. Without the file or the variable, the clock stays unchanged. Other clocks
 * (timers, waits) are not shifted.
 *
 * It is freestanding, because the C library of the other bitness may be missing:
 *   gcc -O2 -ffreestanding -fno-builtin -fno-stack-protector -nostdlib -shared -fPIC [-m32]
 *       -o time_shim.so time_shim.c
 *
 * Preload it only into the program under test; Wine's server must already be running. From a script:
 *   Wine_Run 60 LD_PRELOAD=/full/path/time_shim.so VT_CLOCK=/full/path/offset vellatro.exe
 * A Windows program cannot set these variables by SetEnvironmentVariable, because Wine passes on its own
 * environment. It can start a program of the host by CreateProcess, and has to find it by its window, since
 * it gets no process handle: Z:\usr\bin\env LD_PRELOAD=/full/path/time_shim.so VT_CLOCK=/full/path/offset
 *       wine /full/path/vellatro.exe
 *
 * Wine does not announce the change: a test that needs WM_TIMECHANGE broadcasts it itself. */

typedef long long Seconds;

struct Moment { /* the kernel's layout on both bitnesses */
    Seconds seconds;
    Seconds nanoseconds;
};

enum { Real_Time = 0, Real_Time_Coarse = 5 };

extern char **environ;

#ifdef __x86_64__
enum { Read = 0, Open = 2, Close = 3, Clock_Gettime = 228 };

static long Call_Kernel(long number, long first, long second, long third) {
    long result;
    __asm__ volatile("syscall"
                     : "=a"(result)
                     : "a"(number), "D"(first), "S"(second), "d"(third)
                     : "rcx", "r11", "memory");
    return result;
}
#else
enum { Read = 3, Open = 5, Close = 6, Clock_Gettime = 403 }; /* the call with 64-bit seconds */

static long Call_Kernel(long number, long first, long second, long third) {
    long result;
    __asm__ volatile("int $0x80"
                     : "=a"(result)
                     : "a"(number), "b"(first), "c"(second), "d"(third)
                     : "memory");
    return result;
}
#endif

static const char *File_Name(void) {
    static const char name[] = "VT_CLOCK=";
    for (char **entry = environ; entry && *entry; ++entry) {
        unsigned same = 0;
        while (name[same] && (*entry)[same] == name[same])
            ++same;
        if (!name[same])
            return *entry + same;
    }
    return 0;
}

/* Returns the number in the file, with an optional sign, and ignores what follows its digits. */
static Seconds Offset(void) {
    char text[32];
    Seconds value = 0;
    const char *name = File_Name();
    const long file = name ? Call_Kernel(Open, (long)name, 0, 0) : -1;
    if (file < 0)
        return 0;
    const long length = Call_Kernel(Read, file, (long)text, sizeof text);
    Call_Kernel(Close, file, 0, 0);
    const int negative = length > 0 && text[0] == '-';
    for (long i = negative; i < length && text[i] >= '0' && text[i] <= '9'; ++i)
        value = value * 10 + (text[i] - '0');
    return negative ? -value : value;
}

static int Ask(int clock, struct Moment *now) {
    if (Call_Kernel(Clock_Gettime, clock, (long)now, 0) != 0)
        return -1;
    if (clock == Real_Time || clock == Real_Time_Coarse)
        now->seconds += Offset();
    return 0;
}

/* The C library's functions. The structures of the classical calls hold "long"; 32-bit programs with 64-bit
 * time use the calls with 64 in their names. Nanoseconds fit 32 bits, so the division needs no library. */

int clock_gettime(int clock, long *result) {
    struct Moment now;
    if (Ask(clock, &now) != 0)
        return -1;
    result[0] = (long)now.seconds;
    result[1] = (long)now.nanoseconds;
    return 0;
}

int gettimeofday(long *result, void *zone) {
    struct Moment now;
    (void)zone;
    if (Ask(Real_Time, &now) != 0)
        return -1;
    result[0] = (long)now.seconds;
    result[1] = (long)((unsigned)now.nanoseconds / 1000u);
    return 0;
}

long time(long *result) {
    struct Moment now;
    if (Ask(Real_Time, &now) != 0)
        return -1;
    if (result)
        *result = (long)now.seconds;
    return (long)now.seconds;
}

#ifndef __x86_64__
int __clock_gettime64(int clock, struct Moment *result) {
    return Ask(clock, result);
}

int __gettimeofday64(struct Moment *result, void *zone) {
    (void)zone;
    if (Ask(Real_Time, result) != 0)
        return -1;
    result->nanoseconds = (unsigned)result->nanoseconds / 1000u; /* the field then holds microseconds */
    return 0;
}

Seconds __time64(Seconds *result) {
    struct Moment now;
    if (Ask(Real_Time, &now) != 0)
        return -1;
    if (result)
        *result = now.seconds;
    return now.seconds;
}
#endif
