#pragma once

#include <QList>
#include <QObject>
#include <QRandomGenerator>
#include <QString>
#include <functional>

// A service record of the domain name system.
struct ServiceRecord {
  QString target;
  quint16 port = 0;
  quint16 priority = 0;
  quint16 weight = 0;
};

using ServicesFound = std::function<void(const QList<ServiceRecord>&)>;
// Calls back at most once, with an empty list when there is none or the lookup failed; never after `context`
// is destroyed.
using ServiceLookup = std::function<void(const QString& name, QObject* context, ServicesFound found)>;

// A ServiceLookup that uses the domain name system.
void lookUpServices(const QString& name, QObject* context, ServicesFound found);

// In the order in which they are to be tried: lowest priority first, within one priority drawn by weight.
// Records without a target are left out.
QList<ServiceRecord> inOrderOfTrial(QList<ServiceRecord> records, QRandomGenerator& random);
