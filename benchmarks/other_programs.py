"""Measures other programs, where they are installed, on the work of a conversion: raw pixels after
a header of 44 bytes become a 256-colour bitmap. Takes a folder in memory-backed storage."""

import os
import resource
import shutil
import subprocess
import sys

COUNT, WIDTH, HEIGHT = 50, 640, 480


def processor_time():
    used = [resource.getrusage(who) for who in (resource.RUSAGE_SELF, resource.RUSAGE_CHILDREN)]
    return sum(usage.ru_utime + usage.ru_stime for usage in used)


def make_pictures(folder):
    pixels = bytes((i * 7 + i // WIDTH) % 256 for i in range(WIDTH * HEIGHT))
    names = [os.path.join(folder, f"other{i:03}.bmp") for i in range(COUNT)]
    for name in names:
        with open(name, "wb") as file:
            file.write(b"KS".ljust(44, b"\0") + pixels + bytes(24))
    return names


def pillow(names, target):
    from PIL import Image

    palette = bytes(value for i in range(256) for value in (i, i, i))
    for name in names:
        with open(name, "rb") as file:
            data = file.read()
        image = Image.frombytes("P", (WIDTH, HEIGHT), data[44 : 44 + WIDTH * HEIGHT])
        image.putpalette(palette)
        image.save(os.path.join(target, os.path.basename(name)))


def image_magick(names, target):
    for name in names:
        output = "bmp3:" + os.path.join(target, os.path.basename(name))
        subprocess.run(
            ["convert", "-size", f"{WIDTH}x{HEIGHT}+44", "-depth", "8", "gray:" + name, output],
            check=True,
        )


def netpbm(names, target):
    for name in names:
        with open(os.path.join(target, os.path.basename(name)), "wb") as output:
            raw = ["rawtopgm", "-headerskip", "44", str(WIDTH), str(HEIGHT), name]
            reader = subprocess.Popen(raw, stdout=subprocess.PIPE)
            subprocess.run(["ppmtobmp", "-bpp=8"], stdin=reader.stdout, stdout=output,
                           stderr=subprocess.DEVNULL, check=True)
            reader.stdout.close()
            reader.wait()


def main():
    source = os.path.join(sys.argv[1], "others")
    target = os.path.join(sys.argv[1], "others-out")
    os.makedirs(source, exist_ok=True)
    os.makedirs(target, exist_ok=True)
    names = make_pictures(source)
    try:
        import PIL.Image  # noqa: F401
        has_pillow = True
    except ImportError:
        has_pillow = False
    programs = [
        ("Pillow", pillow, has_pillow),
        ("ImageMagick, a process each", image_magick, shutil.which("convert")),
        ("netpbm, two processes each", netpbm, shutil.which("rawtopgm")),
    ]
    for title, convert, installed in programs:
        if not installed:
            print(f"{title:30} isn't installed")
            continue
        begin = processor_time()
        convert(names, target)
        print(f"{title:30} {1000 * (processor_time() - begin) / COUNT:8.3f} ms")


main()
