-- Contrôles à lancer après la reprise des données, avant de basculer les lectures.
-- Chaque requête doit rendre zéro. Adaptez les noms de table et de colonnes.

-- 1. Lignes que la reprise a oubliées.
SELECT count(*) AS lignes_oubliees
  FROM client
 WHERE courriel IS NOT NULL
   AND courriel_normalise IS NULL;

-- 2. Lignes où l’ancienne et la nouvelle forme se contredisent.
SELECT count(*) AS lignes_divergentes
  FROM client
 WHERE courriel_normalise <> lower(trim(courriel));

-- 3. Doublons qui empêcheraient de poser la contrainte d’unicité.
SELECT count(*) AS valeurs_en_double
  FROM (
    SELECT courriel_normalise
      FROM client
     WHERE courriel_normalise IS NOT NULL
     GROUP BY courriel_normalise
    HAVING count(*) > 1
  ) AS doublons;
