"""What scripts/run shows where there is no display: a picture of the window, on a virtual one."""

import os
import subprocess
import tempfile

from kestrel import BUILD, SOURCE, check, run


def a_picture_of_the_window_is_written():
    with tempfile.TemporaryDirectory() as folder:
        file = f"{folder}/window.png"
        os.symlink(f"{BUILD}/bin/krenclosure", f"{folder}/krenclosure")
        os.symlink(f"{BUILD}/bin/kestrelraid-emulated", f"{folder}/kestrelraid")  # no real bridges
        environment = {key: value for key, value in os.environ.items() if key != "DISPLAY"}
        subprocess.run([f"{SOURCE}/scripts/picture", folder, file], env=environment, check=True, timeout=300)
        size, colours = subprocess.run(["identify", "-format", "%wx%h %k", file], capture_output=True, text=True,
                                       check=True, timeout=30).stdout.split()
        check("size", size, "800x630")
        check("more than a background, which has 1,256 colours", int(colours) > 3000, True)


run(a_picture_of_the_window_is_written)
