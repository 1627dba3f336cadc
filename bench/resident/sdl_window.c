/* What a program has resident that shows a picture of 800 x 600 pixels and 16 bits by SDL alone:
 * the peer of the operator panel's figure. Prints it and ends. */
#include <SDL.h>

#include <stdio.h>
#include <string.h>

enum { kWidth = 800, kHeight = 600, kBytes = 2 };

static void printResident(void) {
    char line[256];
    FILE* status = fopen("/proc/self/status", "r");
    while (status && fgets(line, sizeof line, status))
        if (strncmp(line, "VmRSS:", 6) == 0)
            printf("resident%s", line + 6);
    if (status)
        fclose(status);
}

int main(void) {
    static unsigned char pixels[kWidth * kHeight * kBytes];
    /* A driver of the graphics processor would take ten times as much. */
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        return 1;
    SDL_Window* window = SDL_CreateWindow("peer", SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED,
                                          kWidth, kHeight, 0);
    SDL_Renderer* renderer = SDL_CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE);
    SDL_Texture* texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGB565,
                                             SDL_TEXTUREACCESS_STREAMING, kWidth, kHeight);
    if (!texture)
        return 1;
    memset(pixels, 0x5A, sizeof pixels);
    SDL_UpdateTexture(texture, NULL, pixels, kWidth * kBytes);
    SDL_RenderCopy(renderer, texture, NULL, NULL);
    SDL_RenderPresent(renderer);
    printResident();
    SDL_Quit();
    return 0;
}
