/* Preloaded into sway: gives its outputs, which exist only in memory, gamma ramps, and writes what
   they hold to files. NOCTURO_RAMPS is the directory; each file has an output's name and holds all
   red, all green and all blue entries; an output with the compositor's own ramp has none.
   NOCTURO_RAMP_SIZE is the number of entries, 256 unless told otherwise. Outputs in memory refuse
   to be disabled, so one that is to be is unplugged instead. */

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <wlr/types/wlr_output.h>

size_t wlr_output_get_gamma_size(struct wlr_output* output) {
    (void)output;
    const char* size = getenv("NOCTURO_RAMP_SIZE");
    return size != NULL ? strtoul(size, NULL, 10) : 256;
}

void wlr_output_set_gamma(struct wlr_output* output, size_t size, const uint16_t* red,
                          const uint16_t* green, const uint16_t* blue) {
    char path[4096];
    char temporary[4100];
    snprintf(path, sizeof path, "%s/%s", getenv("NOCTURO_RAMPS"), output->name);
    if (size == 0) {
        remove(path);
        return;
    }
    snprintf(temporary, sizeof temporary, "%s~", path);
    FILE* file = fopen(temporary, "wb");
    fwrite(red, sizeof *red, size, file);
    fwrite(green, sizeof *green, size, file);
    fwrite(blue, sizeof *blue, size, file);
    fclose(file);
    rename(temporary, path);
}

static void unplug(void* output) { wlr_output_destroy(output); }

void wlr_output_enable(struct wlr_output* output, bool enable) {
    void (*original)(struct wlr_output*, bool);
    *(void**)&original = dlsym(RTLD_NEXT, "wlr_output_enable");
    if (enable) {
        original(output, enable);
    } else {
        wl_event_loop_add_idle(wl_display_get_event_loop(output->display), unplug, output);
    }
}
