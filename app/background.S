/* The pixels of the window's picture, which the build makes ready (art/ready_picture). */
    .section .rodata
    .balign 4096
    .global kestrel_background_1x
kestrel_background_1x:
    .incbin "background.pixels"
    .if . - kestrel_background_1x - 800 * 630 * 4
    .error "the background is not of the window's size"
    .endif
    .balign 4096
    .global kestrel_background_2x
kestrel_background_2x:
    .incbin "background@2x.pixels"
    .if . - kestrel_background_2x - 1600 * 1260 * 4
    .error "the background for dense screens is not of twice the window's size"
    .endif
    .balign 4096
    .section .note.GNU-stack, "", %progbits
