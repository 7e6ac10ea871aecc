"""What tests against an HTTPS server share: an authority of their own and a certificate that is right."""

import tempfile

from https_server import Authority


class HttpsCase:
    """Beside unittest.TestCase among the base classes."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = folder.name
        cls.authority = Authority(cls.folder)
        cls.chain = cls.authority.issue("right")
