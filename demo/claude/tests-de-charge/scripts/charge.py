"""Envoie des appels simultanés à une adresse et affiche les délais observés."""

import argparse
import time
import urllib.error
import urllib.request
from concurrent.futures import ThreadPoolExecutor


def appeler(adresse, delai_max):
    """Rend la durée de l’appel en millisecondes et s’il a réussi."""
    debut = time.perf_counter()
    try:
        with urllib.request.urlopen(adresse, timeout=delai_max) as reponse:
            reponse.read()
            reussi = True
    except (urllib.error.URLError, OSError):
        reussi = False
    return (time.perf_counter() - debut) * 1000, reussi


def centile(durees, rang):
    """Rend le centile demandé d’une liste triée et non vide."""
    position = round(rang / 100 * (len(durees) - 1))
    return durees[position]


def main():
    analyseur = argparse.ArgumentParser(description=__doc__)
    analyseur.add_argument("adresse")
    analyseur.add_argument("--appels", type=int, default=100)
    analyseur.add_argument("--simultanes", type=int, default=5)
    analyseur.add_argument("--delai-max", type=float, default=10.0)
    options = analyseur.parse_args()
    if options.appels < 1 or options.simultanes < 1:
        analyseur.error("--appels et --simultanes doivent valoir au moins 1")

    debut = time.perf_counter()
    with ThreadPoolExecutor(max_workers=options.simultanes) as equipe:
        resultats = list(
            equipe.map(
                lambda _: appeler(options.adresse, options.delai_max),
                range(options.appels),
            )
        )
    total = time.perf_counter() - debut

    durees = sorted(duree for duree, _ in resultats)
    echecs = sum(1 for _, reussi in resultats if not reussi)
    print(f"Appels : {len(resultats)}, échecs : {echecs}")
    print(f"Débit : {len(resultats) / total:.1f} appels par seconde")
    for rang in (50, 95, 99):
        print(f"Centile {rang} : {centile(durees, rang):.1f} ms")


if __name__ == "__main__":
    main()
