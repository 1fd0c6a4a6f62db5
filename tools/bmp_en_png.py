#!/usr/bin/env python3
"""Turns a 24- or 32-bit BMP (a capture of the game) into a PNG, with the standard library
only. A picture of 256 colours or fewer is written with a palette, which keeps it small.

usage: bmp_en_png.py IMAGE.bmp IMAGE.png
"""
import struct
import sys
import zlib


def lire_bmp(chemin):
    with open(chemin, "rb") as f:
        donnees = f.read()
    if donnees[:2] != b"BM":
        raise SystemExit(f"{chemin} : pas une image BMP")
    debut = struct.unpack_from("<I", donnees, 10)[0]
    largeur, hauteur = struct.unpack_from("<ii", donnees, 18)
    bits = struct.unpack_from("<H", donnees, 28)[0]
    if bits not in (24, 32):
        raise SystemExit(f"{chemin} : {bits} bits par pixel, 24 ou 32 attendus")
    octets = bits // 8
    pas = (largeur * octets + 3) & ~3
    lignes = []
    for y in range(abs(hauteur)):
        ligne_fichier = abs(hauteur) - 1 - y if hauteur > 0 else y
        brute = donnees[debut + ligne_fichier * pas: debut + ligne_fichier * pas + largeur * octets]
        lignes.append([(brute[i + 2], brute[i + 1], brute[i]) for i in range(0, len(brute), octets)])
    return largeur, abs(hauteur), lignes


def morceau(genre, contenu):
    return struct.pack(">I", len(contenu)) + genre + contenu + struct.pack(">I", zlib.crc32(genre + contenu) & 0xFFFFFFFF)


def ecrire_png(chemin, largeur, hauteur, lignes):
    couleurs = {}
    for ligne in lignes:
        for p in ligne:
            if p not in couleurs:
                couleurs[p] = len(couleurs)
                if len(couleurs) > 256:
                    break
    palette = len(couleurs) <= 256
    brut = bytearray()
    for ligne in lignes:
        brut.append(0)
        if palette:
            brut.extend(couleurs[p] for p in ligne)
        else:
            for p in ligne:
                brut.extend(p)
    entete = struct.pack(">IIBBBBB", largeur, hauteur, 8, 3 if palette else 2, 0, 0, 0)
    png = b"\x89PNG\r\n\x1a\n" + morceau(b"IHDR", entete)
    if palette:
        png += morceau(b"PLTE", b"".join(bytes(c) for c in couleurs))
    png += morceau(b"IDAT", zlib.compress(bytes(brut), 9)) + morceau(b"IEND", b"")
    with open(chemin, "wb") as f:
        f.write(png)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    ecrire_png(sys.argv[2], *lire_bmp(sys.argv[1]))
