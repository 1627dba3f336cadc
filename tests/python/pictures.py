"""Pictures against kept ones."""
import subprocess


def differing_pixels(kept, drawn):
    """How many; ImageMagick compares colours, however they are stored."""
    done = subprocess.run(
        ["compare", "-metric", "AE", kept, drawn, "null:"], capture_output=True, encoding="utf-8")
    return int(done.stderr)
