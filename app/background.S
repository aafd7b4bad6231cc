/* The pixels of the window's picture, which the build makes ready (art/ready_picture). */
    .section .rodata
    .balign 4096
    .global kestrel_background_1x
kestrel_background_1x:
    .incbin "background.pixels"
    .balign 4096
    .global kestrel_background_2x
kestrel_background_2x:
    .incbin "background@2x.pixels"
    .balign 4096
    .section .note.GNU-stack, "", %progbits
