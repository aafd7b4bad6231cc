/* The pixels of all pictures, which the build makes ready (art/ready_pictures). */
    .section .rodata
    .balign 4096
    .global kestrel_pictures
kestrel_pictures:
    .incbin "pictures.pixels"
    .balign 4096
    .section .note.GNU-stack, "", %progbits
