"""Documents for the benchmarks: the same bytes every time, written without any PDF library."""

import os
import random
import shutil
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


def page_tree(writer, pages, sizes, stride):
    """Writes the catalog and all nodes, from the root down: as object 1, 2 and so on. `sizes` are those of the nodes,
    from the lowest ones up; none gives a flat list. Returns the number of the first page, where every `stride`th
    number is a page, and the parents of the pages."""
    counts = []  # of the nodes in each level below the root, from the lowest up
    for size in sizes:
        counts.append(((counts or [pages])[-1] + size - 1) // size)
    starts, number = [], 3
    for count in reversed(counts):
        starts.insert(0, number)
        number += count
    first_page = number

    def node(number, level, own, parent):
        """A node above the kids `own` of the level below."""
        kids = [first_page + stride * kid if level == 0 else starts[level - 1] + kid for kid in own]
        span = 1
        for size in sizes[:level]:
            span *= size
        count = min(pages, own.stop * span) - own.start * span
        writer.add(number, b"<< /Type /Pages " + parent + b"/Kids [ " + b" ".join(b"%d 0 R" % kid for kid in kids) +
                   b" ] /Count %d " % count + (b"" if parent else b"/MediaBox [ 0 0 595 842 ] ") + b">>")

    writer.add(1, b"<< /Type /Catalog /Pages 2 0 R >>")
    node(2, len(sizes), range(counts[-1] if counts else pages), b"")
    for level in reversed(range(len(sizes))):
        below = counts[level - 1] if level else pages
        for n in range(counts[level]):
            above = starts[level + 1] + n // sizes[level + 1] if level + 1 < len(sizes) else 2
            own = range(n * sizes[level], min(below, (n + 1) * sizes[level]))
            node(starts[level] + n, level, own, b"/Parent %d 0 R " % above)
    return first_page, [starts[0] + p // sizes[0] if sizes else 2 for p in range(pages)]


def document(path, pages, payload, seed, sizes=(100,)):
    """`pages` pages, each with its contents, below nodes of these sizes; `payload` bytes of incompressible images."""
    noise = random.Random(seed)
    writer = Writer(path)
    first_page, parents = page_tree(writer, pages, sizes, 2)
    image = first_page + 2 * pages
    images = max(1, payload // 4_000_000) if payload else 0
    for p, parent in enumerate(parents):
        number = first_page + 2 * p
        shown = b"/XObject << /I %d 0 R >> " % (image + p % images) if images else b""
        writer.add(number, b"<< /Type /Page /Parent %d 0 R /Contents %d 0 R /Resources << /ProcSet [ /PDF /Text ] "
                   % (parent, number + 1) + shown +
                   b"/Font << /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >> >>")
        lines = b" ".join(b"(line %d of page %d) Tj T*" % (line, p + 1) for line in range(6))
        writer.stream(number + 1, b"BT /F1 12 Tf 14 TL 50 800 Td " + lines + b" ET")
    for n in range(images):
        data = noise.randbytes(payload // images)
        writer.stream(image + n, data, b"/Type /XObject /Subtype /Image /Width %d /Height 1 /BitsPerComponent 8 "
                      b"/ColorSpace /DeviceGray " % len(data))
    writer.close()


def in_object_streams(source, target, *options):
    subprocess.run(["qpdf", "--object-streams=generate", *options, source, target], check=True)


def copies(path, count):
    """Copies of `name00.pdf`, up to `count` with it. Returns all of them."""
    paths = [path.replace("00.pdf", f"{n:02}.pdf") for n in range(count)]
    for copy in paths[1:]:
        shutil.copyfile(path, copy)
    return paths


def build(folder):
    """Builds what is missing in `folder` and returns the workloads' files by name."""
    sets = {name: os.path.join(folder, name)
            for name in ("small", "images", "table", "objstm", "flat-table", "flat-objstm", "one")}
    done = os.path.join(folder, "complete")
    if not os.path.exists(done) or os.path.getmtime(done) < os.path.getmtime(__file__):
        for path in sets.values():
            os.makedirs(path, exist_ok=True)
        sizes = random.Random(1)
        for n in range(500):
            document(f"{sets['small']}/manual{n:03}.pdf", sizes.randint(2, 60), sizes.randint(2_000, 175_000), n)
        for n in range(3):
            document(f"{sets['images']}/plates{n}.pdf", 40, 133_000_000, 1000 + n)
        for flat, nodes in (("", (100,)), ("flat-", ())):
            table, objstm = (f"{sets[flat + kind]}/book00.pdf" for kind in ("table", "objstm"))
            document(table, 20_000, 0, 2000, nodes)
            in_object_streams(table, objstm, "--compress-streams=n")
            copies(table, 20)
            copies(objstm, 20)
        document(f"{sets['one']}/manual.pdf", 12, 80_000, 3000)
        open(done, "w").close()
    return {name: sorted(os.path.join(path, f) for f in os.listdir(path)) for name, path in sets.items()}


# How many pages, in nodes of which sizes, and how many copies.
BOOKS = {
    "2 pages": (2, (), 9),
    "20,000 pages": (20_000, (100,), 9),
    "20,000 pages in one list": (20_000, (), 9),
    "200,000 pages": (200_000, (100, 100), 5),
    "200,000 pages in one list": (200_000, (), 5),
}


def build_books(folder):
    """Builds what is missing of documents that differ in their number of pages. Returns their files by name, with a
    table and with object streams."""
    os.makedirs(folder, exist_ok=True)
    books = {}
    for name, (pages, sizes, count) in BOOKS.items():
        table, objstm = (f"{folder}/{pages}-{'-'.join(map(str, sizes))}{kind}00.pdf" for kind in ("table", "objstm"))
        if not os.path.exists(objstm):
            document(table, pages, 0, 0, sizes)
            in_object_streams(table, objstm)
        books[name, "table"], books[name, "object streams"] = copies(table, count), copies(objstm, count)
    return books
