"""Documents for the benchmarks: the same bytes every time, written without any PDF library."""

import os
import random
import subprocess


class Writer:
    """Writes one PDF with a cross-reference table."""

    def __init__(self, path):
        self.file = open(path, "wb")
        self.offsets = {}
        self.file.write(b"%PDF-1.5\n%\xe2\xe3\xcf\xd3\n")

    def add(self, number, body):
        self.offsets[number] = self.file.tell()
        self.file.write(b"%d 0 obj\n" % number + body + b"\nendobj\n")

    def stream(self, number, data, entries=b""):
        self.add(number, b"<< /Length %d %s>>\nstream\n" % (len(data), entries) + data + b"\nendstream")

    def close(self):
        start = self.file.tell()
        size = max(self.offsets) + 1
        self.file.write(b"xref\n0 %d\n0000000000 65535 f \n" % size)
        self.file.write(b"".join(b"%010d 00000 n \n" % self.offsets[n] for n in range(1, size)))
        self.file.write(b"trailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (size, start))
        self.file.close()


def document(path, pages, payload, seed):
    """`pages` pages in nodes of 100, each with its contents; `payload` bytes of incompressible images."""
    noise = random.Random(seed)
    writer = Writer(path)
    nodes = (pages + 99) // 100
    first_node, first_page = 3, 3 + nodes
    image = first_page + 2 * pages
    writer.add(1, b"<< /Type /Catalog /Pages 2 0 R >>")
    kids = b" ".join(b"%d 0 R" % (first_node + n) for n in range(nodes))
    writer.add(2, b"<< /Type /Pages /Kids [ " + kids + b" ] /Count %d /MediaBox [ 0 0 595 842 ] >>" % pages)
    for n in range(nodes):
        own = range(n * 100, min(pages, n * 100 + 100))
        kids = b" ".join(b"%d 0 R" % (first_page + 2 * p) for p in own)
        writer.add(first_node + n, b"<< /Type /Pages /Parent 2 0 R /Kids [ " + kids + b" ] /Count %d >>" % len(own))
    images = max(1, payload // 4_000_000) if payload else 0
    for p in range(pages):
        number = first_page + 2 * p
        shown = b"/XObject << /I %d 0 R >> " % (image + p % images) if images else b""
        writer.add(number, b"<< /Type /Page /Parent %d 0 R /Contents %d 0 R /Resources << /ProcSet [ /PDF /Text ] "
                   % (first_node + p // 100, number + 1) + shown +
                   b"/Font << /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >> >>")
        lines = b" ".join(b"(line %d of page %d) Tj T*" % (line, p + 1) for line in range(6))
        writer.stream(number + 1, b"BT /F1 12 Tf 14 TL 50 800 Td " + lines + b" ET")
    for n in range(images):
        data = noise.randbytes(payload // images)
        writer.stream(image + n, data, b"/Type /XObject /Subtype /Image /Width %d /Height 1 /BitsPerComponent 8 "
                      b"/ColorSpace /DeviceGray " % len(data))
    writer.close()


def build(folder):
    """Builds what is missing in `folder` and returns the workloads' files by name."""
    sets = {name: os.path.join(folder, name) for name in ("small", "images", "table", "objstm", "one")}
    done = os.path.join(folder, "complete")
    if not os.path.exists(done):
        for path in sets.values():
            os.makedirs(path, exist_ok=True)
        sizes = random.Random(1)
        for n in range(500):
            document(f"{sets['small']}/manual{n:03}.pdf", sizes.randint(2, 60), sizes.randint(2_000, 175_000), n)
        for n in range(3):
            document(f"{sets['images']}/plates{n}.pdf", 40, 133_000_000, 1000 + n)
        document(f"{sets['table']}/book00.pdf", 20_000, 0, 2000)
        subprocess.run(["qpdf", "--object-streams=generate", "--compress-streams=n", f"{sets['table']}/book00.pdf",
                        f"{sets['objstm']}/book00.pdf"], check=True)
        for name in ("table", "objstm"):
            for n in range(1, 20):
                with open(f"{sets[name]}/book00.pdf", "rb") as source:
                    with open(f"{sets[name]}/book{n:02}.pdf", "wb") as copy:
                        copy.write(source.read())
        document(f"{sets['one']}/manual.pdf", 12, 80_000, 3000)
        open(done, "w").close()
    return {name: sorted(os.path.join(path, f) for f in os.listdir(path)) for name, path in sets.items()}
